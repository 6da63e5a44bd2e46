// Changes a control as its user does, with the signals that the user's action sends.
#pragma once

#include <QJsonObject>
#include <QWidget>

#include <functional>
#include <optional>

namespace quill::driver {

// The change that these arguments of "set" ask for; nothing when the control cannot take it. It may
// open a nested loop, and must not be run when the control has gone.
std::optional<std::function<void()>> PrepareChange(QWidget& control, const QJsonObject& arguments);

}  // namespace quill::driver
