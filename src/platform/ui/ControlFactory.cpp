#include "platform/ui/ControlFactory.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/Edit.h"
#include "platform/ui/MultiEdit.h"
#include "platform/ui/NumberEdit.h"
#include "platform/ui/PanelEdit.h"
#include "platform/ui/TextLabel.h"
#include "platform/ui/TimePicker.h"

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

CDropDown* MakeTypedDropDown(CDialog& dialog) {
  auto* const list = new CDropDown(dialog.Screen(), &dialog);
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  return list;
}

QWidget* MakeWidget(const resources::DialogControl& control, CDialog& dialog) {
  const QString text = control.Text.toString();
  switch (control.Kind) {
    case resources::ControlKind::Label:
      return MakeLabel(text, Qt::AlignLeft, &dialog);
    case resources::ControlKind::CentredLabel:
      return MakeLabel(text, Qt::AlignHCenter, &dialog);
    case resources::ControlKind::WrappedLabel:
      return new CTextLabel(text, &dialog);
    case resources::ControlKind::Edit:
      return new CEdit(text, &dialog);
    case resources::ControlKind::PanelEdit:
      return new CPanelEdit(text, &dialog);
    case resources::ControlKind::Button:
      return new QPushButton(text, &dialog);
    case resources::ControlKind::Check:
      return new QCheckBox(text, &dialog);
    case resources::ControlKind::Radio:
      return new QRadioButton(text, &dialog);
    case resources::ControlKind::CheckList:
      return new CCheckList(text, &dialog);
    case resources::ControlKind::DropDown:
      return new CDropDown(dialog.Screen(), &dialog);
    case resources::ControlKind::TypedDropDown:
      return MakeTypedDropDown(dialog);
    case resources::ControlKind::MultiEdit:
      return new CMultiEdit(text, &dialog);
    case resources::ControlKind::Number:
      return new CNumberEdit(text, &dialog);
    case resources::ControlKind::Date:
      return MakeDate(text, &dialog);
    case resources::ControlKind::Time:
      return MakeTime(text, &dialog);
  }
  Q_UNREACHABLE();
}

}  // namespace

QWidget* MakeControl(const resources::DialogControl& control, CDialog& dialog) {
  QWidget* const widget = MakeWidget(control, dialog);
  widget->setVisible(control.State == resources::ControlState::Visible);
  return widget;
}

}  // namespace quill
