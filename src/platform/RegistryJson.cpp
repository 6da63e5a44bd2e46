#include "platform/RegistryJson.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quill {

namespace {

// All blocks of a registry together; no settings are near this, and a larger figure is damage.
constexpr qsizetype kMostBytes = 1 << 20;

QString UnitsOfBlock(const QByteArray& block) {
  QString units(block.size() / 2, Qt::Uninitialized);
  qFromLittleEndian<char16_t>(block.constData(), units.size(), units.data());
  return units;
}

QByteArray BlockOfUnits(const QString& units) {
  QByteArray block(units.size() * 2, Qt::Uninitialized);
  qToLittleEndian<char16_t>(units.constData(), units.size(), block.data());
  return block;
}

// The block's text when the block is that text and zero fill; nothing otherwise.
std::optional<QString> TextOfBlock(const QByteArray& block) {
  QString text = UnitsOfBlock(block);
  while (text.endsWith(QChar::Null)) text.chop(1);
  // A reader of JSON may swallow a byte-order mark at a text's begin.
  const bool marked = text.startsWith(QChar::ByteOrderMark);
  const bool plain = text.isValidUtf16() && !marked && !text.contains(QChar::Null);
  const bool whole = BlockOfUnits(text).leftJustified(block.size(), '\0') == block;
  return plain && whole ? std::optional(text) : std::nullopt;
}

QJsonValue JsonOfBlock(const QByteArray& block) {
  if (const auto text = TextOfBlock(block))
    return QJsonObject{{QStringLiteral("text"), *text},
                       {QStringLiteral("bytes"), static_cast<int>(block.size())}};
  return QJsonObject{{QStringLiteral("base64"), QString::fromLatin1(block.toBase64())}};
}

std::optional<RegistryValue> BlockOfJson(const QJsonObject& object) {
  const QJsonValue base64 = object.value(QStringLiteral("base64"));
  if (base64.isString()) {
    const auto decoded = QByteArray::fromBase64Encoding(base64.toString().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional<RegistryValue>(*decoded) : std::nullopt;
  }
  const QJsonValue text = object.value(QStringLiteral("text"));
  const int bytes = object.value(QStringLiteral("bytes")).toInt(-1);
  if (!text.isString() || bytes < 0 || bytes > kMostBytes) return std::nullopt;
  const QByteArray block = BlockOfUnits(text.toString());
  if (block.size() > bytes) return std::nullopt;
  return block.leftJustified(bytes, '\0');
}

std::optional<RegistryValue> NumberOfJson(double number) {
  if (number < 0 || number > std::numeric_limits<quint32>::max()) return std::nullopt;
  if (std::floor(number) != number) return std::nullopt;
  return static_cast<quint32>(number);
}

std::optional<RegistryValue> ValueOfJson(const QJsonValue& json) {
  if (json.isDouble()) return NumberOfJson(json.toDouble());
  return json.isObject() ? BlockOfJson(json.toObject()) : std::nullopt;
}

qsizetype SizeOf(const RegistryValue& value) {
  const auto* block = std::get_if<QByteArray>(&value);
  return block ? block->size() : 0;
}

// room: how many bytes the blocks may still have.
bool ReadValues(const QJsonObject& object, RegistryKey& key, qsizetype& room) {
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    const auto value = ValueOfJson(entry.value());
    if (!value) return false;
    room -= SizeOf(*value);
    if (room < 0) return false;
    RegistryValueIn(key, entry.key()) = *value;
  }
  return true;
}

QJsonObject JsonOfKey(const RegistryKey& key) {
  QJsonObject values;
  for (const auto& [folded, value] : key.Values) {
    const auto* number = std::get_if<quint32>(&value.Content);
    values[value.Spelling] = number ? QJsonValue(static_cast<qint64>(*number))
                                    : JsonOfBlock(std::get<QByteArray>(value.Content));
  }
  return values;
}

}  // namespace

QString RegistryFold(const QString& name) { return name.toCaseFolded(); }

RegistryKey& RegistryKeyIn(RegistryKeys& keys, const QString& key) {
  return keys.try_emplace(RegistryFold(key), RegistryKey{key, {}}).first->second;
}

RegistryValue& RegistryValueIn(RegistryKey& key, const QString& name) {
  const auto added = key.Values.try_emplace(RegistryFold(name), RegistryNamedValue{name, {}});
  return added.first->second.Content;
}

std::optional<RegistryKeys> RegistryFromJson(const QByteArray& json) {
  const QJsonDocument document = QJsonDocument::fromJson(json);
  if (!document.isObject()) return std::nullopt;
  const QJsonObject root = document.object();
  RegistryKeys keys;
  qsizetype room = kMostBytes;
  for (auto entry = root.begin(); entry != root.end(); ++entry) {
    if (!entry.value().isObject()) return std::nullopt;
    RegistryKey& key = RegistryKeyIn(keys, entry.key());
    if (!ReadValues(entry.value().toObject(), key, room)) return std::nullopt;
  }
  return keys;
}

QByteArray JsonFromRegistry(const RegistryKeys& keys) {
  QJsonObject root;
  for (const auto& [folded, key] : keys) root[key.Spelling] = JsonOfKey(key);
  return QJsonDocument(root).toJson();
}

}  // namespace quill
