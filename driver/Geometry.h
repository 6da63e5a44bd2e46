// Rectangles as the protocol writes them: "x", "y", "w", "h".
#pragma once

#include <QJsonObject>
#include <QRect>

namespace quill::driver {

void AddRectangle(QJsonObject& object, const QRect& rectangle);
QJsonObject RectangleJson(const QRect& rectangle);

}  // namespace quill::driver
