// settings: what the registry holds of them.
#include <QtEndian>

#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "driver/Arguments.h"
#include "driver/Operations.h"
#include "platform/RegistryStore.h"
#include "platform/Services.h"
#include "settings/Settings.h"

namespace quill::driver {

namespace {

constexpr int kLargestBlock = 1 << 16;  // bytes; far more than any setting takes
constexpr std::array kNumberNames = {kAbcName, kNameName, kAreaCodeName};

QString Key() { return kSettingsKey.toString(); }

// Nothing when no area code is stored.
std::optional<QByteArray> StoredBlock() {
  QByteArray block(kLargestBlock, '\0');
  const RegistryTextRead read =
      g_services.Registry->QueryText(Key(), kAreaCodeValueName.toString(), block);
  if (read.Status != RegistryStatus::Done) return std::nullopt;
  return block.left(read.Size);
}

// Up to its terminator.
QString TextOf(const QByteArray& block) {
  QString text(block.size() / 2, Qt::Uninitialized);
  qFromLittleEndian<char16_t>(block.constData(), text.size(), text.data());
  return text.left(text.indexOf(QChar::Null));
}

QByteArray BlockOf(const QString& text, int size) {
  QByteArray block(text.size() * 2, Qt::Uninitialized);
  qToLittleEndian<char16_t>(text.constData(), text.size(), block.data());
  return block.leftJustified(size, '\0', true);
}

bool IsRegistryNumber(const QJsonValue& value) {
  const double number = value.toDouble(-1);
  return number >= 0 && number <= std::numeric_limits<quint32>::max() &&
         std::floor(number) == number;
}

bool AreValues(const QJsonObject& values) {
  for (const QStringView name : kNumberNames)
    if (values.contains(name) && !IsRegistryNumber(values.value(name))) return false;
  if (values.contains(kAreaCodeValueName) && !values.value(kAreaCodeValueName).isString())
    return false;
  if (!values.contains(u"AreaCodeValueBytes")) return true;
  const int bytes = WholeNumber(values, u"AreaCodeValueBytes").value_or(-1);
  return bytes >= 0 && bytes <= kLargestBlock;
}

bool StoreAreaCode(const QJsonObject& values) {
  if (!values.contains(kAreaCodeValueName) && !values.contains(u"AreaCodeValueBytes")) return true;
  const QString stored = TextOf(StoredBlock().value_or(QByteArray()));
  const QString text = values.value(kAreaCodeValueName).toString(stored);
  const int bytes = values.value(u"AreaCodeValueBytes").toInt(kAreaCodeBlockSize);
  return g_services.Registry->PutText(Key(), kAreaCodeValueName.toString(), BlockOf(text, bytes));
}

bool StoreValues(const QJsonObject& values) {
  for (const QStringView name : kNumberNames) {
    const auto number = static_cast<quint32>(values.value(name).toDouble());
    if (values.contains(name) && !g_services.Registry->PutNumber(Key(), name.toString(), number))
      return false;
  }
  return StoreAreaCode(values);
}

// What is not stored is null.
QJsonObject StoredSettings() {
  QJsonObject settings;
  for (const QStringView name : kNumberNames) {
    const auto number = g_services.Registry->QueryNumber(Key(), name.toString());
    settings.insert(name, number ? QJsonValue(static_cast<qint64>(*number)) : QJsonValue());
  }
  const auto block = StoredBlock();
  settings.insert(kAreaCodeValueName, block ? QJsonValue(TextOf(*block)) : QJsonValue());
  settings.insert(u"AreaCodeValueBytes",
                  block ? QJsonValue(static_cast<int>(block->size())) : QJsonValue());
  settings.insert(u"AreaCodePrefix", g_settings.AreaCodePrefix);
  return settings;
}

Answer SettingsStored(const QJsonObject& arguments, OperationContext&) {
  const QJsonValue values = arguments.value(u"values");
  if (!values.isUndefined()) {
    if (!values.isObject() || !AreValues(values.toObject())) return Refusal(kMalformed);
    if (!StoreValues(values.toObject())) return Refusal(u"not written");
  }
  return Result(u"settings", StoredSettings());
}

}  // namespace

OperationTable SettingsOperations() { return {{u"settings", SettingsStored}}; }

}  // namespace quill::driver
