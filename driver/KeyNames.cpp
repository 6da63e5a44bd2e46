#include "driver/KeyNames.h"

#include <QKeySequence>
#include <QMetaEnum>

#include <array>
#include <utility>

namespace quill::driver {

namespace {

constexpr std::array kModifiers = {
    std::pair{QStringView(u"Ctrl+"), Qt::ControlModifier},
    std::pair{QStringView(u"Shift+"), Qt::ShiftModifier},
    std::pair{QStringView(u"Alt+"), Qt::AltModifier},
    std::pair{QStringView(u"Meta+"), Qt::MetaModifier},
};

// Takes one modifier off the front of the name.
Qt::KeyboardModifiers TakeModifier(QStringView& name) {
  for (const auto& [prefix, modifier] : kModifiers) {
    if (name.size() <= prefix.size() || !name.startsWith(prefix, Qt::CaseInsensitive)) continue;
    name = name.sliced(prefix.size());
    return modifier;
  }
  return Qt::NoModifier;
}

int KeyCode(QStringView name) {
  const QByteArray enumerator = "Key_" + name.toUtf8();
  bool known = false;
  const int key = QMetaEnum::fromType<Qt::Key>().keyToValue(enumerator.constData(), &known);
  if (known) return key;
  const auto sequence = QKeySequence::fromString(name.toString(), QKeySequence::PortableText);
  if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown) return 0;
  return sequence[0].key();
}

QString TextOf(const NamedKey& key, QStringView name) {
  if (key.Modifiers.testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
    return {};
  switch (key.Key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return QStringLiteral("\r");
    case Qt::Key_Tab:
      return QStringLiteral("\t");
    case Qt::Key_Backspace:
      return QStringLiteral("\b");
    case Qt::Key_Space:
      return QStringLiteral(" ");
    default:
      break;
  }
  if (name.size() != 1) return {};
  const bool shifted = key.Modifiers.testFlag(Qt::ShiftModifier);
  return shifted ? name.toString().toUpper() : name.toString();
}

}  // namespace

std::optional<NamedKey> ParseKey(const QString& name) {
  NamedKey key;
  QStringView rest = name;
  for (auto modifier = TakeModifier(rest); modifier; modifier = TakeModifier(rest))
    key.Modifiers |= modifier;
  key.Key = KeyCode(rest);
  if (key.Key == 0) return std::nullopt;
  key.Text = TextOf(key, rest);
  return key;
}

NamedKey KeyOf(QChar character) {
  if (character == u'\t') return {Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t")};
  if (character == u'\n' || character == u'\r')
    return {Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r")};
  const Qt::KeyboardModifiers modifiers = character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
  return {character.toUpper().unicode(), modifiers, QString(character)};
}

}  // namespace quill::driver
