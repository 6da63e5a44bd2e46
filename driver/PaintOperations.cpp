// where, texts, screenshot.
#include <QImage>
#include <QJsonArray>

#include "driver/Arguments.h"
#include "driver/Geometry.h"
#include "driver/Operations.h"
#include "driver/Targets.h"
#include "driver/TextRecorder.h"
#include "platform/ui/Screen.h"

namespace quill::driver {

namespace {

constexpr double kLargestPicture = 8;  // image pixels for each logical pixel

Answer Where(const QJsonObject& arguments, OperationContext&) {
  const std::optional<Target> target = FindTarget(arguments.value(u"on"));
  if (!target) return RefuseTarget(arguments.value(u"on"));
  return Result(u"where", RectangleJson(OnScreen(*target)));
}

QJsonObject TextJson(const RecordedText& text, QPoint origin) {
  QJsonObject object = RectangleJson(text.Box.toAlignedRect().translated(-origin));
  object.insert(u"text", text.Text);
  object.insert(u"color", text.Color.name());
  if (IsCut(text)) object.insert(u"cut", true);
  return object;
}

Answer Texts(const QJsonObject& arguments, OperationContext&) {
  const std::optional<Target> target = FindTarget(arguments.value(u"on"));
  if (!target) return RefuseTarget(arguments.value(u"on"));
  QWidget::RenderFlags flags = QWidget::DrawWindowBackground;
  if (arguments.value(u"children").toBool(true)) flags |= QWidget::DrawChildren;
  TextRecorder recorder(target->Window->size());
  target->Window->render(&recorder, QPoint(), QRegion(), flags);
  QJsonArray array;
  for (const RecordedText& text : recorder.Texts())
    array.append(TextJson(text, target->Client.topLeft()));
  return Result(u"texts", array);
}

Answer Screenshot(const QJsonObject& arguments, OperationContext&) {
  const std::optional<QString> file = Text(arguments, u"file");
  CScreen* screen = FindScreen();
  if (!file || screen == nullptr) return Refusal(kMalformed);
  const double scale = HasArgument(arguments, u"scale") ? Number(arguments, u"scale").value_or(0)
                                                        : screen->devicePixelRatioF();
  if (scale < 1 || scale > kLargestPicture) return Refusal(kMalformed);
  QImage image((QSizeF(screen->size()) * scale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  screen->render(&image);
  return image.save(*file, "PNG") ? Done() : Refusal(u"not written");
}

}  // namespace

OperationTable PaintOperations() {
  return {{u"where", Where}, {u"texts", Texts}, {u"screenshot", Screenshot}};
}

}  // namespace quill::driver
