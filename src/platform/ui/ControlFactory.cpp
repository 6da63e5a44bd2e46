#include "platform/ui/ControlFactory.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/Edit.h"
#include "platform/ui/MultiEdit.h"
#include "platform/ui/NumberEdit.h"
#include "platform/ui/PanelEdit.h"
#include "platform/ui/PictureToggle.h"
#include "platform/ui/TextLabel.h"
#include "platform/ui/TimePicker.h"
#include "platform/ui/TypedDropDown.h"

namespace quill {

namespace {

QLabel* MakeLabel(const QString& text, Qt::Alignment alignment, QWidget* parent) {
  auto* const label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(alignment | Qt::AlignVCenter);
  return label;
}

CDatePicker* MakeDate(const QString& name, QWidget* parent) {
  auto* const date = new CDatePicker(NoneCheck::Absent, parent);
  date->setAccessibleName(name);
  return date;
}

CTimePicker* MakeTime(const QString& name, QWidget* parent) {
  auto* const time = new CTimePicker(parent);
  time->setAccessibleName(name);
  return time;
}

// Its cell has the focus for it, if it has one.
QWidget* Named(const QString& name, CDropDown* list) {
  list->setAccessibleName(name);
  if (list->lineEdit()) list->lineEdit()->setAccessibleName(name);
  return list;
}

QWidget* MakeWidget(const resources::DialogControl& control, CScreen& screen, QWidget* parent) {
  const QString text = control.Text.toString();
  switch (control.Kind) {
    case resources::ControlKind::Label:
      return MakeLabel(text, Qt::AlignLeft, parent);
    case resources::ControlKind::CentredLabel:
      return MakeLabel(text, Qt::AlignHCenter, parent);
    case resources::ControlKind::WrappedLabel:
      return new CTextLabel(text, parent);
    case resources::ControlKind::Edit:
      return new CEdit(text, parent);
    case resources::ControlKind::PanelEdit:
      return new CPanelEdit(text, parent);
    case resources::ControlKind::Button:
      return new QPushButton(text, parent);
    case resources::ControlKind::Check:
      return new QCheckBox(text, parent);
    case resources::ControlKind::Radio:
      return new QRadioButton(text, parent);
    case resources::ControlKind::CheckList:
      return new CCheckList(text, parent);
    case resources::ControlKind::DropDown:
      return Named(text, new CDropDown(screen, parent));
    case resources::ControlKind::TypedDropDown:
      return Named(text, new CTypedDropDown(screen, parent));
    case resources::ControlKind::MultiEdit:
      return new CMultiEdit(text, parent);
    case resources::ControlKind::Number:
      return new CNumberEdit(text, parent);
    case resources::ControlKind::Date:
      return MakeDate(text, parent);
    case resources::ControlKind::Time:
      return MakeTime(text, parent);
    case resources::ControlKind::Toggle:
      return new CPictureToggle(text, parent);
  }
  Q_UNREACHABLE();
}

}  // namespace

QRect ToRect(const resources::Rectangle& place) {
  return {place.X, place.Y, place.Width, place.Height};
}

QWidget* MakeControl(const resources::DialogControl& control, CScreen& screen, QWidget* parent) {
  QWidget* const widget = MakeWidget(control, screen, parent);
  widget->setGeometry(ToRect(control.Place));
  widget->setVisible(control.State == resources::ControlState::Visible);
  return widget;
}

}  // namespace quill
