#include "appointments/ui/AppointmentControls.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "platform/ui/DatePicker.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/NumberEdit.h"
#include "platform/ui/TimePicker.h"
#include "resources/AppointmentIds.h"

namespace quill {

AppointmentControls::AppointmentControls(CDialog& dialog)
    : m_dialog(dialog),
      m_sound(List(AppointmentIds::kSound), Get<QPushButton>(AppointmentIds::kPlay)) {
  NameControls();
  FollowTexts();
  FollowMoments();
  FollowLists();
}

template <class Widget>
Widget& AppointmentControls::Get(int id) const {
  return *qobject_cast<Widget*>(m_dialog.Control(id));
}

CDropDown& AppointmentControls::List(int id) const { return Get<CDropDown>(id); }

void AppointmentControls::TellChanged() const {
  if (Changed) Changed();
}

void AppointmentControls::NameControls() {
  Get<QLineEdit>(AppointmentIds::kSubject).setAccessibleName(QStringLiteral("Subject"));
  List(AppointmentIds::kRecurrence).setAccessibleName(QStringLiteral("Recur"));
  List(AppointmentIds::kAlarm).setAccessibleName(QStringLiteral("Alarm"));
  List(AppointmentIds::kAlarmUnit).setAccessibleName(QStringLiteral("Unit"));
  List(AppointmentIds::kSound).setAccessibleName(QStringLiteral("Sound"));
}

void AppointmentControls::FollowTexts() {
  const auto tell = [this] { TellChanged(); };
  auto& subject = Get<QLineEdit>(AppointmentIds::kSubject);
  subject.setMaxLength(kMostSubject);
  QObject::connect(&subject, &QLineEdit::textChanged, &m_dialog, tell);
  QObject::connect(&Get<CNumberEdit>(AppointmentIds::kAlarmAmount), &QLineEdit::textChanged,
                   &m_dialog, tell);
  QObject::connect(&Get<QCheckBox>(AppointmentIds::kAllDay), &QCheckBox::toggled, &m_dialog, tell);
}

// An end that is set before the start stays so.
void AppointmentControls::FollowMoments() {
  Get<CDatePicker>(AppointmentIds::kStartDate).Changed = [this] { StartChanged(); };
  Get<CDatePicker>(AppointmentIds::kEndDate).Changed = [this] { TellChanged(); };
  QObject::connect(&Get<CTimePicker>(AppointmentIds::kStartTime), &QTimeEdit::timeChanged,
                   &m_dialog, [this] { StartChanged(); });
  QObject::connect(&Get<CTimePicker>(AppointmentIds::kEndTime), &QTimeEdit::timeChanged, &m_dialog,
                   [this] { TellChanged(); });
}

void AppointmentControls::FollowLists() {
  const auto follow = [this](int id, const std::function<void(int)>& chosen) {
    QObject::connect(&List(id), &QComboBox::activated, &m_dialog, [this, chosen](int index) {
      chosen(index);
      TellChanged();
    });
  };
  follow(AppointmentIds::kRecurrence, [this](int index) { RecurrenceChosen(index); });
  follow(AppointmentIds::kAlarm, [this](int) { EnableAlarm(); });
  follow(AppointmentIds::kAlarmUnit, [](int) {});
  follow(AppointmentIds::kSound, [this](int) { SoundChosen(); });
}

void AppointmentControls::FillLists(QDate start) {
  List(AppointmentIds::kRecurrence).addItems(RecurrenceChoiceTexts(start));
  List(AppointmentIds::kAlarm).addItems({QStringLiteral("Yes"), QStringLiteral("No")});
  for (const QStringView unit : kAlarmUnitNames)
    List(AppointmentIds::kAlarmUnit).addItem(unit.toString());
  m_sound.FillList();
}

void AppointmentControls::ShowForm(const AppointmentForm& form) {
  Get<QLineEdit>(AppointmentIds::kSubject).setText(form.Subject);
  SetMoment(AppointmentIds::kStartDate, AppointmentIds::kStartTime, form.Start);
  SetMoment(AppointmentIds::kEndDate, AppointmentIds::kEndTime, form.End);
  Get<QCheckBox>(AppointmentIds::kAllDay).setChecked(form.AllDay);
  SetRecurrence(form.Recurrence);
  List(AppointmentIds::kAlarm).setCurrentIndex(static_cast<int>(form.Alarm));
  Get<CNumberEdit>(AppointmentIds::kAlarmAmount).setText(QString::number(form.Before.Amount));
  List(AppointmentIds::kAlarmUnit).setCurrentIndex(static_cast<int>(form.Before.Unit));
  m_sound.Choose(form.Sound);
  RefillRecurrence();
  EnableAlarm();
  TellChanged();
}

AppointmentForm AppointmentControls::Form() const {
  return {
      .Subject = Get<QLineEdit>(AppointmentIds::kSubject).text(),
      .Start = MomentOf(AppointmentIds::kStartDate, AppointmentIds::kStartTime),
      .End = MomentOf(AppointmentIds::kEndDate, AppointmentIds::kEndTime),
      .AllDay = Get<QCheckBox>(AppointmentIds::kAllDay).isChecked(),
      .Recurrence = static_cast<RecurrenceChoice>(List(AppointmentIds::kRecurrence).currentIndex()),
      .Alarm = static_cast<Alarm>(List(AppointmentIds::kAlarm).currentIndex()),
      .Before = {Get<CNumberEdit>(AppointmentIds::kAlarmAmount).Number(),
                 static_cast<AlarmUnit>(List(AppointmentIds::kAlarmUnit).currentIndex())},
      .Sound = m_sound.Chosen(),
  };
}

void AppointmentControls::SetRecurrence(RecurrenceChoice choice) {
  List(AppointmentIds::kRecurrence).setCurrentIndex(static_cast<int>(choice));
}

void AppointmentControls::Reveal(AppointmentRow row) {
  for (int i = 0; i < kAppointmentRowCount; ++i)
    for (const int id : ControlsOf(static_cast<AppointmentRow>(i))) m_dialog.Control(id)->hide();
  QWidget* first = nullptr;
  for (const int id : ControlsOf(row)) {
    QWidget* const control = m_dialog.Control(id);
    control->show();
    if (!first && control->isEnabled()) first = control;
  }
  if (first) first->setFocus(Qt::OtherFocusReason);
}

Moment AppointmentControls::MomentOf(int dateId, int timeId) const {
  return {Get<CDatePicker>(dateId).ShownDate(), Get<CTimePicker>(timeId).time()};
}

void AppointmentControls::SetMoment(int dateId, int timeId, const Moment& moment) {
  auto& time = Get<CTimePicker>(timeId);
  const QSignalBlocker blocker(&time);
  Get<CDatePicker>(dateId).SetDate(moment.Date, {});
  time.setTime(moment.Time);
}

void AppointmentControls::StartChanged() {
  AppointmentForm form = Form();
  FollowStart(form);
  SetMoment(AppointmentIds::kEndDate, AppointmentIds::kEndTime, form.End);
  RefillRecurrence();
  TellChanged();
}

// Its texts speak of the start.
void AppointmentControls::RefillRecurrence() {
  CDropDown& list = List(AppointmentIds::kRecurrence);
  const QStringList texts = RecurrenceChoiceTexts(Form().Start.Date);
  for (int i = 0; i < list.count(); ++i) list.setItemText(i, texts.at(i));
}

void AppointmentControls::RecurrenceChosen(int index) {
  if (index == static_cast<int>(RecurrenceChoice::EditPattern) && PatternAsked) PatternAsked();
}

bool AppointmentControls::HasAlarm() const { return Form().Alarm == Alarm::Yes; }

void AppointmentControls::EnableAlarm() {
  const bool alarm = HasAlarm();
  for (const int id :
       {AppointmentIds::kAlarmAmount, AppointmentIds::kAlarmUnit, AppointmentIds::kSound})
    m_dialog.Control(id)->setEnabled(alarm);
  m_dialog.Control(AppointmentIds::kPlay)->setEnabled(alarm && !m_sound.Chosen().isEmpty());
}

void AppointmentControls::SoundChosen() {
  EnableAlarm();
  if (HasAlarm()) m_sound.Replay();
}

}  // namespace quill
