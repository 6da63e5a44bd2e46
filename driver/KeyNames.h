// Keys by the names that Qt gives them.
#pragma once

#include <QString>

#include <optional>

namespace quill::driver {

struct NamedKey {
  int Key = 0;
  Qt::KeyboardModifiers Modifiers = Qt::NoModifier;
  QString Text = {};  // what the key types, empty when nothing
};

// "Return", "PageUp", "a", "Ctrl+Z", "Ctrl++": modifiers Ctrl, Shift, Alt, Meta before one key.
std::optional<NamedKey> ParseKey(const QString& name);

// The key press that types this character.
NamedKey KeyOf(QChar character);

}  // namespace quill::driver
