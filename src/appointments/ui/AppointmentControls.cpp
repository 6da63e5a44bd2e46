#include "appointments/ui/AppointmentControls.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "platform/TextFitting.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/NumberEdit.h"
#include "platform/ui/TimePicker.h"
#include "resources/AppointmentIds.h"

namespace quill {

AppointmentControls::AppointmentControls(CDialog& dialog)
    : m_dialog(dialog),
      m_start{.DateId = AppointmentIds::kStartDate, .TimeId = AppointmentIds::kStartTime},
      m_end{.DateId = AppointmentIds::kEndDate, .TimeId = AppointmentIds::kEndTime},
      m_sound(List(AppointmentIds::kSound), Get<QPushButton>(AppointmentIds::kPlay)) {
  FillLists();
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

void AppointmentControls::FollowTexts() {
  const auto tell = [this] { TellChanged(); };
  auto& subject = Get<QLineEdit>(AppointmentIds::kSubject);
  subject.setAccessibleName(QStringLiteral("Subject"));
  subject.setMaxLength(kMostSubject);
  connect(&subject, &QLineEdit::textChanged, this, tell);
  connect(&Get<CNumberEdit>(AppointmentIds::kAlarmAmount), &QLineEdit::textChanged, this, tell);
  connect(&Get<QCheckBox>(AppointmentIds::kAllDay), &QCheckBox::toggled, this, tell);
}

// An end that is set before the start stays so.
void AppointmentControls::FollowMoments() {
  Get<CDatePicker>(AppointmentIds::kStartDate).Changed = [this] { StartChanged(); };
  Get<CDatePicker>(AppointmentIds::kEndDate).Changed = [this] { TellChanged(); };
  Get<CTimePicker>(AppointmentIds::kStartTime).Changed = [this] { StartChanged(); };
  Get<CTimePicker>(AppointmentIds::kEndTime).Changed = [this] { TellChanged(); };
}

void AppointmentControls::FollowLists() {
  const auto follow = [this](int id, const std::function<void(int)>& chosen) {
    connect(&List(id), &QComboBox::activated, this, [this, chosen](int index) {
      chosen(index);
      TellChanged();
    });
  };
  follow(AppointmentIds::kRecurrence, [this](int index) { RecurrenceChosen(index); });
  follow(AppointmentIds::kAlarm, [this](int) { EnableAlarm(); });
  follow(AppointmentIds::kAlarmUnit, [](int) {});
  follow(AppointmentIds::kSound, [this](int) { SoundChosen(); });
}

void AppointmentControls::FillLists() {
  List(AppointmentIds::kRecurrence).addItems(RecurrenceChoiceTexts({}));  // until a form is shown
  List(AppointmentIds::kAlarm).addItems({QStringLiteral("Yes"), QStringLiteral("No")});
  for (const QStringView unit : kAlarmUnitNames)
    List(AppointmentIds::kAlarmUnit).addItem(unit.toString());
  m_sound.FillList();
}

void AppointmentControls::ShowForm(const AppointmentForm& form) {
  Get<QLineEdit>(AppointmentIds::kSubject).setText(CutText(form.Subject, kMostSubject));
  SetMoment(m_start, form.Start);
  SetMoment(m_end, form.End);
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
      .Start = MomentOf(m_start),
      .End = MomentOf(m_end),
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

void AppointmentControls::Reveal(std::optional<AppointmentRow> row) {
  m_sound.Stop();
  for (int i = 0; i < kAppointmentRowCount; ++i)
    for (const int id : ControlsOf(static_cast<AppointmentRow>(i))) m_dialog.Control(id)->hide();
  if (!row) return;
  QWidget* first = nullptr;
  for (const int id : ControlsOf(*row)) {
    QWidget* const control = m_dialog.Control(id);
    control->show();
    if (!first && control->isEnabled()) first = control;
  }
  if (first) first->setFocus(Qt::OtherFocusReason);
}

Moment AppointmentControls::Shown(const MomentPickers& pickers) const {
  return {Get<CDatePicker>(pickers.DateId).ShownDate(), Get<CTimePicker>(pickers.TimeId).time()};
}

Moment AppointmentControls::MomentOf(const MomentPickers& pickers) const {
  const Moment shown = Shown(pickers);
  return shown == pickers.Shown ? pickers.Given : shown;
}

void AppointmentControls::SetMoment(MomentPickers& pickers, const Moment& moment) {
  Get<CDatePicker>(pickers.DateId).SetDate(moment.Date, {});
  Get<CTimePicker>(pickers.TimeId).SetTime(moment.Time);
  pickers.Given = moment;
  pickers.Shown = Shown(pickers);
}

void AppointmentControls::StartChanged() {
  AppointmentForm form = Form();
  FollowStart(form);
  SetMoment(m_end, form.End);  // the same one keeps what it was given
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
  if (!alarm) m_sound.Stop();
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
