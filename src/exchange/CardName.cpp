#include "exchange/CardName.h"

namespace quill {

namespace {

constexpr qsizetype kLongest = 60;

// A report goes to a terminal, which other characters would steer.
bool IsForEyes(QChar c) {
  return c.category() != QChar::Other_Control && c.category() != QChar::Other_Format;
}

QString Shown(const CardProperty& property) {
  QString text = PartsOf(property, u';').join(u' ').simplified().left(kLongest);
  text.removeIf([](QChar c) { return !IsForEyes(c); });
  return text;
}

}  // namespace

QString CardName(const std::vector<CardProperty>& properties) {
  for (const QStringView name : {u"FN", u"N", u"NICKNAME", u"ORG", u"EMAIL", u"TEL"}) {
    for (const CardProperty& property : properties) {
      if (property.IsNested || property.Name != name) continue;
      const QString shown = Shown(property);
      if (!shown.isEmpty()) return shown;
    }
  }
  return {};
}

}  // namespace quill
