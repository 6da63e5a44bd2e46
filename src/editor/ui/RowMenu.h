// The popup of a record sheet's row: call, mail or open what it holds, or copy it.
#pragma once

#include <QPoint>

#include <optional>

#include "editor/RowRules.h"
#include "platform/ui/EditMenu.h"

class QWidget;

namespace quill {

// At a point of the widget. Waits for the choice and carries it out. Nothing opens where there is
// nothing to choose.
void ShowRowMenu(QWidget& widget, QPoint at, RowEntry entry, const QString& value);

// What opens the row's value, for the menu of the field over it; nothing where nothing opens it.
std::optional<AddedMenuItem> RowLinkItem(RowEntry entry, const QString& value);

}  // namespace quill
