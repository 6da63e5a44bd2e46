#include "driver/Geometry.h"

namespace quill::driver {

void AddRectangle(QJsonObject& object, const QRect& rectangle) {
  object.insert(u"x", rectangle.x());
  object.insert(u"y", rectangle.y());
  object.insert(u"w", rectangle.width());
  object.insert(u"h", rectangle.height());
}

QJsonObject RectangleJson(const QRect& rectangle) {
  QJsonObject object;
  AddRectangle(object, rectangle);
  return object;
}

}  // namespace quill::driver
