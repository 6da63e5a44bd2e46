#include "editor/ui/RowMenu.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QLoggingCategory>

#include "editor/RowLinks.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

namespace {

Q_LOGGING_CATEGORY(sheetLog, "quill.sheet")

void Open(const QUrl& target) {
  if (!QDesktopServices::openUrl(target))
    qCWarning(sheetLog) << "nothing on this desktop opens" << target.scheme();
}

}  // namespace

std::optional<AddedMenuItem> RowLinkItem(RowEntry entry, const QString& value) {
  const auto link = LinkOf(entry, value);
  if (!link) return std::nullopt;
  return AddedMenuItem{.Text = link->Text, .Run = [target = link->Target] { Open(target); }};
}

void ShowRowMenu(QWidget& widget, QPoint at, RowEntry entry, const QString& value) {
  CScreen* const screen = ScreenAround(&widget);
  if (!screen || value.isEmpty() || entry == RowEntry::Any) return;
  const auto link = LinkOf(entry, value);
  std::vector<MenuItem> items;
  if (link) items.push_back({.Text = link->Text, .Id = RowMenuIds::kOpen});
  items.push_back({.Text = QStringLiteral("Copy"), .Id = RowMenuIds::kCopy});
  const int chosen = screen->TrackMenu(widget.mapTo(screen, at), items);
  if (chosen == RowMenuIds::kOpen) Open(link->Target);
  if (chosen == RowMenuIds::kCopy) QGuiApplication::clipboard()->setText(value);
}

}  // namespace quill
