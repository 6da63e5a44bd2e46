// widgets: how many the application has now, hidden ones too.
#include <QApplication>
#include <QMap>
#include <QWidget>

#include "driver/ClassName.h"
#include "driver/Operations.h"

namespace quill::driver {

namespace {

Answer Widgets(const QJsonObject&, OperationContext&) {
  QMap<QString, int> counts;
  for (const QWidget* widget : QApplication::allWidgets()) ++counts[ClassName(*widget)];
  QJsonObject object;
  for (auto count = counts.begin(); count != counts.end(); ++count)
    object.insert(count.key(), count.value());
  return Result(u"widgets", object);
}

}  // namespace

OperationTable WidgetOperations() { return {{u"widgets", Widgets}}; }

}  // namespace quill::driver
