#include "driver/ControlChange.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "driver/Arguments.h"
#include "platform/CalendarLayout.h"
#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"

namespace quill::driver {

namespace {

using Change = std::optional<std::function<void()>>;

void TypeOver(QLineEdit& edit, const QString& text) {
  edit.setFocus(Qt::MouseFocusReason);
  edit.selectAll();
  text.isEmpty() ? edit.del() : edit.insert(text);
}

Change ChangeText(QWidget& control, const QString& text) {
  auto* edit = qobject_cast<QLineEdit*>(&control);
  if (auto* list = qobject_cast<QComboBox*>(&control)) edit = list->lineEdit();
  if (edit && !edit->isReadOnly()) return [edit, text] { TypeOver(*edit, text); };
  auto* page = qobject_cast<QPlainTextEdit*>(&control);
  if (page == nullptr || page->isReadOnly()) return std::nullopt;
  return [page, text] {
    page->setFocus(Qt::MouseFocusReason);
    page->selectAll();
    page->insertPlainText(text);
  };
}

Change ChangeRow(QListWidget& list, int index) {
  if (index < 0 || index >= list.count()) return std::nullopt;
  return [&list, index] {
    list.setFocus(Qt::MouseFocusReason);
    list.setCurrentRow(index);
  };
}

// An entry that is selected already is activated all the same, as a user may do.
Change ChangeIndex(QWidget& control, int index) {
  if (auto* rows = qobject_cast<QListWidget*>(&control)) return ChangeRow(*rows, index);
  auto* list = qobject_cast<QComboBox*>(&control);
  if (list == nullptr || index < 0 || index >= list->count()) return std::nullopt;
  return [list, index] {
    list->setFocus(Qt::MouseFocusReason);
    list->setCurrentIndex(index);
    Q_EMIT list->activated(index);
  };
}

Change ChangePickerCheck(CDatePicker& picker, bool checked) {
  if (!picker.HasNoneCheck()) return std::nullopt;
  return [&picker, checked] {
    picker.setFocus(Qt::MouseFocusReason);
    picker.SetChecked(checked);
  };
}

Change ChangePickerDate(CDatePicker& picker, QDate date) {
  if (date != KeepInCalendar(date)) return std::nullopt;
  return [&picker, date] {
    picker.setFocus(Qt::MouseFocusReason);
    picker.ChooseDate(date);
  };
}

Change ChangeChecked(QWidget& control, bool checked) {
  if (auto* picker = qobject_cast<CDatePicker*>(&control))
    return ChangePickerCheck(*picker, checked);
  auto* button = qobject_cast<QAbstractButton*>(&control);
  if (button == nullptr || !button->isCheckable()) return std::nullopt;
  return [button, checked] {
    if (button->isChecked() != checked) button->click();
  };
}

// A row whose check is as it shall be is made current all the same.
Change ChangeListItem(QWidget& control, int index, bool checked) {
  auto* list = qobject_cast<CCheckList*>(&control);
  if (list == nullptr || index < 0 || index >= static_cast<int>(list->Items().size()))
    return std::nullopt;
  return [list, index, checked] {
    list->setFocus(Qt::MouseFocusReason);
    const bool before = list->Items()[static_cast<std::size_t>(index)].Checked;
    before == checked ? list->SetCurrent(index) : list->ActivateRow(index);
  };
}

Change ChangeDate(QWidget& control, const QString& text) {
  const QDate date = QDate::fromString(text, Qt::ISODate);
  if (!date.isValid()) return std::nullopt;
  if (auto* picker = qobject_cast<CDatePicker*>(&control)) return ChangePickerDate(*picker, date);
  auto* edit = qobject_cast<QDateTimeEdit*>(&control);
  if (edit == nullptr) return std::nullopt;
  return [edit, date] { edit->setDate(date); };
}

Change ClearDate(QWidget& control) {
  auto* picker = qobject_cast<CDatePicker*>(&control);
  return picker ? ChangePickerCheck(*picker, false) : std::nullopt;
}

Change ChangeTime(QWidget& control, const QString& text) {
  auto* edit = qobject_cast<QDateTimeEdit*>(&control);
  const QTime time = QTime::fromString(text, Qt::ISODate);
  if (edit == nullptr || !time.isValid()) return std::nullopt;
  return [edit, time] { edit->setTime(time); };
}

}  // namespace

std::optional<std::function<void()>> PrepareChange(QWidget& control, const QJsonObject& arguments) {
  const auto text = Text(arguments, u"text");
  const auto index = WholeNumber(arguments, u"index");
  const auto checked = Truth(arguments, u"checked");
  const auto date = Text(arguments, u"date");
  const auto time = Text(arguments, u"time");
  if (text) return ChangeText(control, *text);
  if (index && checked) return ChangeListItem(control, *index, *checked);
  if (index) return ChangeIndex(control, *index);
  if (checked) return ChangeChecked(control, *checked);
  if (arguments.value(u"date").isNull()) return ClearDate(control);
  if (date) return ChangeDate(control, *date);
  if (time) return ChangeTime(control, *time);
  return std::nullopt;
}

}  // namespace quill::driver
