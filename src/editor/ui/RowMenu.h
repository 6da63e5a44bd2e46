// The popup of a record sheet's row: call, mail or open what it holds, or copy it.
#pragma once

#include <QPoint>

#include "editor/RowRules.h"

class QWidget;

namespace quill {

// At a point of the widget. Waits for the choice and carries it out. Nothing opens where there is
// nothing to choose.
void ShowRowMenu(QWidget& widget, QPoint at, RowEntry entry, const QString& value);

}  // namespace quill
