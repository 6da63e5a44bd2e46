#include "editor/RowLinks.h"

namespace quill {

namespace {

constexpr QStringView kSeparators = u" -.()/\u00A0";

// The number without what follows it: an extension is dialled by hand.
QStringView WithoutExtension(QStringView number) {
  for (const QStringView mark :
       {QStringView(u";"), QStringView(u","), QStringView(u"ext"), QStringView(u"x")}) {
    const qsizetype at = number.indexOf(mark, 0, Qt::CaseInsensitive);
    if (at >= 0) number = number.first(at);
  }
  return number;
}

// Empty for what is not a number as a whole: part of it would be another's.
QString Dialled(const QString& number) {
  QString dialled;
  for (const QChar each : WithoutExtension(number)) {
    const bool isPlus = each == u'+' && dialled.isEmpty();
    if (isPlus || each == u'*' || each == u'#') {
      dialled += each;
    } else if (each.isDigit()) {
      dialled += QString::number(each.digitValue());  // digits of other scripts are the same digits
    } else if (!kSeparators.contains(each)) {
      return {};
    }
  }
  return dialled;
}

QUrl TelephoneOf(const QString& number) {
  const QString dialled = Dialled(number);
  if (dialled.isEmpty() || dialled == u"+") return {};
  QUrl url;
  url.setScheme(QStringLiteral("tel"));
  url.setPath(dialled);
  return url;
}

QUrl MailOf(const QString& address) {
  const QString trimmed = address.trimmed();
  if (!trimmed.contains(u'@')) return {};
  QUrl url;
  url.setScheme(QStringLiteral("mailto"));
  url.setPath(trimmed);
  return url;
}

QUrl PageOf(const QString& text) {
  const QString trimmed = text.trimmed();
  const QUrl url(trimmed);
  if (url.scheme() == u"http" || url.scheme() == u"https")
    return url.host().isEmpty() ? QUrl() : url;
  const bool hasScheme = trimmed.contains(QStringLiteral("://"));
  const QUrl completed(QStringLiteral("https://") + trimmed);
  return hasScheme || !completed.host().contains(u'.') ? QUrl() : completed;
}

std::optional<RowLink> LinkTo(const QUrl& target, const QString& text) {
  if (!target.isValid() || target.isEmpty()) return std::nullopt;
  return RowLink{text, target};
}

}  // namespace

std::optional<RowLink> LinkOf(RowEntry entry, const QString& value) {
  switch (entry) {
    case RowEntry::Number:
      return LinkTo(TelephoneOf(value), QStringLiteral("Call"));
    case RowEntry::Email:
      return LinkTo(MailOf(value), QStringLiteral("Mail"));
    case RowEntry::Web:
      return LinkTo(PageOf(value), QStringLiteral("Open"));
    case RowEntry::Any:
      break;
  }
  return std::nullopt;
}

}  // namespace quill
