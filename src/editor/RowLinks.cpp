#include "editor/RowLinks.h"

namespace quill {

namespace {

QString Dialled(const QString& number) {
  QString dialled;
  for (const QChar each : number) {
    const bool isPlus = each == u'+' && dialled.isEmpty();
    if (isPlus || each == u'*' || each == u'#') dialled += each;
    // Digits of other scripts are the same digits.
    if (each.isDigit()) dialled += QString::number(each.digitValue());
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
