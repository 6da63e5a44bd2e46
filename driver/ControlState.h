// What a control shows, read from the widget itself.
#pragma once

#include <QJsonObject>
#include <QRect>
#include <QWidget>

namespace quill::driver {

// The keys that this control has; place is its rectangle in the window's client area.
QJsonObject ControlJson(int id, const QWidget& control, const QRect& place);

// The text that is selected in it, empty when there is none.
QString SelectedText(const QWidget& control);

}  // namespace quill::driver
