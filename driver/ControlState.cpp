#include "driver/ControlState.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <optional>

#include "driver/ClassName.h"
#include "driver/Geometry.h"
#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"

namespace quill::driver {

namespace {

std::optional<QString> TextOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) return edit->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) return list->currentText();
  if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&control)) return spin->text();
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&control)) return text->toPlainText();
  return std::nullopt;
}

void AddDropDown(QJsonObject& object, const QComboBox& list) {
  QJsonArray items;
  for (int i = 0; i < list.count(); ++i) items.append(list.itemText(i));
  object.insert(u"items", items);
  object.insert(u"index", list.currentIndex());
}

void AddList(QJsonObject& object, const QListWidget& list) {
  QJsonArray items;
  for (int i = 0; i < list.count(); ++i) items.append(list.item(i)->text());
  object.insert(u"items", items);
  object.insert(u"index", list.selectedItems().isEmpty() ? -1 : list.currentRow());
}

void AddCheckList(QJsonObject& object, const CCheckList& list) {
  QJsonArray items;
  for (const CheckListItem& item : list.Items())
    items.append(QJsonObject{{QStringLiteral("text"), item.Text},
                             {QStringLiteral("checked"), item.Checked}});
  object.insert(u"items", items);
  object.insert(u"index", list.CurrentRow());
}

void AddDateAndTime(QJsonObject& object, const QDateTimeEdit& edit) {
  const auto sections = edit.displayedSections();
  if (sections & QDateTimeEdit::DateSections_Mask)
    object.insert(u"date", edit.date().toString(Qt::ISODate));
  if (sections & QDateTimeEdit::TimeSections_Mask)
    object.insert(u"time", edit.time().toString(QStringLiteral("HH:mm")));
}

// The day is the one that is shown, also while there is none.
void AddPickedDate(QJsonObject& object, const CDatePicker& picker) {
  object.insert(u"date", picker.ShownDate().toString(Qt::ISODate));
  if (picker.HasNoneCheck()) object.insert(u"checked", picker.Date().has_value());
}

void AddRange(QJsonObject& object, const QAbstractSlider& slider) {
  object.insert(u"min", slider.minimum());
  object.insert(u"max", slider.maximum());
  object.insert(u"value", slider.value());
}

}  // namespace

QJsonObject ControlJson(int id, const QWidget& control, const QRect& place) {
  QJsonObject object = RectangleJson(place);
  object.insert(u"id", id);
  object.insert(u"class", ClassName(control));
  object.insert(u"visible", control.isVisible());
  object.insert(u"enabled", control.isEnabled());
  if (const auto text = TextOf(control)) object.insert(u"text", *text);
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  if (button && button->isCheckable()) object.insert(u"checked", button->isChecked());
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) AddDropDown(object, *list);
  if (const auto* list = qobject_cast<const CCheckList*>(&control)) AddCheckList(object, *list);
  if (const auto* list = qobject_cast<const QListWidget*>(&control)) AddList(object, *list);
  if (const auto* edit = qobject_cast<const QDateTimeEdit*>(&control))
    AddDateAndTime(object, *edit);
  if (const auto* picker = qobject_cast<const CDatePicker*>(&control))
    AddPickedDate(object, *picker);
  if (const auto* slider = qobject_cast<const QAbstractSlider*>(&control))
    AddRange(object, *slider);
  return object;
}

QString SelectedText(const QWidget& control) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) return edit->selectedText();
  if (const auto* list = qobject_cast<const QComboBox*>(&control))
    return list->lineEdit() ? list->lineEdit()->selectedText() : QString();
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&control))
    return text->textCursor().selectedText();
  return {};
}

}  // namespace quill::driver
