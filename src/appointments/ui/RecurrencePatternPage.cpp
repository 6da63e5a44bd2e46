#include "appointments/ui/RecurrencePatternPage.h"

#include <QButtonGroup>
#include <QRadioButton>

#include "appointments/ui/RecurrenceKindTabs.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/PictureToggle.h"
#include "platform/ui/Sheet.h"
#include "platform/ui/TypedDropDown.h"
#include "resources/RecurrenceDialogs.h"

namespace quill {

namespace {

using namespace RecurrencePatternIds;

// A list whose text counts, and one whose entry counts.
struct TypedList {
  int Id;
  QString PatternEntries::*Text;
  QStringList (*Offers)();
};
struct NamedList {
  int Id;
  int PatternEntries::*Index;
  QStringList (*Names)();
};

constexpr std::array kTypedLists = {
    TypedList{kDailyInterval, &PatternEntries::DailyInterval, OfferedIntervals},
    TypedList{kWeeklyInterval, &PatternEntries::WeeklyInterval, OfferedIntervals},
    TypedList{kMonthDay, &PatternEntries::MonthDay, OfferedDays},
    TypedList{kMonthDayInterval, &PatternEntries::MonthDayInterval, OfferedIntervals},
    TypedList{kMonthWeekdayInterval, &PatternEntries::MonthWeekdayInterval, OfferedIntervals},
    TypedList{kYearDay, &PatternEntries::YearDay, OfferedDays},
};
constexpr std::array kNamedLists = {
    NamedList{kMonthInstance, &PatternEntries::MonthInstance, InstanceNames},
    NamedList{kMonthWeekday, &PatternEntries::MonthWeekday, WeekdayNames},
    NamedList{kYearMonth, &PatternEntries::YearMonth, MonthNames},
    NamedList{kYearInstance, &PatternEntries::YearInstance, InstanceNames},
    NamedList{kYearWeekday, &PatternEntries::YearWeekday, WeekdayNames},
    NamedList{kYearWeekdayMonth, &PatternEntries::YearWeekdayMonth, MonthNames},
};

// The radio button that a list belongs to.
struct ListOfRadio {
  int List;
  int Radio;
};
constexpr std::array kTypedOfRadios = {
    ListOfRadio{kMonthDay, kMonthlyByDay},
    ListOfRadio{kMonthDayInterval, kMonthlyByDay},
    ListOfRadio{kMonthWeekdayInterval, kMonthlyByWeekday},
    ListOfRadio{kYearDay, kYearlyByDay},
};
constexpr std::array kNamedOfRadios = {
    ListOfRadio{kMonthInstance, kMonthlyByWeekday},
    ListOfRadio{kMonthWeekday, kMonthlyByWeekday},
    ListOfRadio{kYearMonth, kYearlyByDay},
    ListOfRadio{kYearInstance, kYearlyByWeekday},
    ListOfRadio{kYearWeekday, kYearlyByWeekday},
    ListOfRadio{kYearWeekdayMonth, kYearlyByWeekday},
};

DayRule RuleOf(const QRadioButton& byWeekday) {
  return byWeekday.isChecked() ? DayRule::ByWeekday : DayRule::ByDay;
}

}  // namespace

CRecurrencePatternPage::CRecurrencePatternPage(CSheet& sheet, RecurrencePattern& pattern,
                                               QDate start)
    : CSheetPage(sheet, QStringLiteral("Pattern")),
      m_pattern(pattern),
      m_start(start),
      m_kinds(new CRecurrenceKindTabs(this)) {
  AddControl(kKinds, m_kinds);
  m_kinds->Chosen = [this] { ShowKind(); };
  MakeControls();
  FillLists();
  JoinRadioButtons(kMonthlyByDay, kMonthlyByWeekday);
  JoinRadioButtons(kYearlyByDay, kYearlyByWeekday);
  FollowLists();
  FollowDays();
}

void CRecurrencePatternPage::MakeControls() {
  for (std::size_t kind = 0; kind < m_kindControls.size(); ++kind)
    for (const resources::DialogControl& control : resources::kRecurrenceKindControls[kind])
      m_kindControls[kind].push_back(AddPageControl(control));
}

void CRecurrencePatternPage::FillLists() {
  for (const TypedList& list : kTypedLists) {
    Typed(list.Id).addItems(list.Offers());
    Typed(list.Id).setInputMethodHints(Qt::ImhDigitsOnly);
  }
  for (const NamedList& list : kNamedLists) List(list.Id).addItems(list.Names());
}

// By themselves all radio buttons of the page would exclude each other.
void CRecurrencePatternPage::JoinRadioButtons(int first, int second) {
  auto* const pair = new QButtonGroup(this);
  pair->addButton(&Radio(first));
  pair->addButton(&Radio(second));
}

void CRecurrencePatternPage::FollowLists() {
  for (const ListOfRadio& pair : kTypedOfRadios)
    Typed(pair.List).Changed = [radio = &Radio(pair.Radio)] { radio->setChecked(true); };
  for (const ListOfRadio& pair : kNamedOfRadios)
    connect(&List(pair.List), &QComboBox::activated, &Radio(pair.Radio),
            [radio = &Radio(pair.Radio)] { radio->setChecked(true); });
}

void CRecurrencePatternPage::FollowDays() {
  const QStringList names = WeekdayNames();
  for (std::size_t day = 0; day < m_days.size(); ++day) {
    const int index = static_cast<int>(day);
    Day(day).setAccessibleName(names[index]);
    connect(&Day(day), &QAbstractButton::clicked, this, [this, index] { TapDay(index); });
  }
}

CTypedDropDown& CRecurrencePatternPage::Typed(int id) const {
  return *qobject_cast<CTypedDropDown*>(Controls().at(id));
}

QComboBox& CRecurrencePatternPage::List(int id) const {
  return *qobject_cast<QComboBox*>(Controls().at(id));
}

QRadioButton& CRecurrencePatternPage::Radio(int id) const {
  return *qobject_cast<QRadioButton*>(Controls().at(id));
}

CPictureToggle& CRecurrencePatternPage::Day(std::size_t day) const {
  return *qobject_cast<CPictureToggle*>(Controls().at(kDays[day]));
}

void CRecurrencePatternPage::LoadRows() {
  const PatternEntries entries = LoadPatternPage(m_pattern, m_start);
  for (const TypedList& list : kTypedLists) Typed(list.Id).SetText(entries.*list.Text);
  for (const NamedList& list : kNamedLists) List(list.Id).setCurrentIndex(entries.*list.Index);
  Radio(entries.Monthly == DayRule::ByDay ? kMonthlyByDay : kMonthlyByWeekday).setChecked(true);
  Radio(entries.Yearly == DayRule::ByDay ? kYearlyByDay : kYearlyByWeekday).setChecked(true);
  m_days = entries.Days;
  ShowDays();
  m_kinds->SetKind(entries.Kind);
  ShowKind();
}

PatternEntries CRecurrencePatternPage::Entries() const {
  PatternEntries entries{.Kind = m_kinds->Kind(),
                         .Days = m_days,
                         .Monthly = RuleOf(Radio(kMonthlyByWeekday)),
                         .Yearly = RuleOf(Radio(kYearlyByWeekday))};
  for (const TypedList& list : kTypedLists) entries.*list.Text = Typed(list.Id).currentText();
  for (const NamedList& list : kNamedLists) entries.*list.Index = List(list.Id).currentIndex();
  return entries;
}

void CRecurrencePatternPage::StoreRows() { WritePatternPage(Entries(), m_pattern); }

void CRecurrencePatternPage::ShowKind() {
  for (std::size_t kind = 0; kind < m_kindControls.size(); ++kind)
    for (QWidget* control : m_kindControls[kind])
      control->setVisible(kind == static_cast<std::size_t>(m_kinds->Kind()));
}

void CRecurrencePatternPage::ShowDays() {
  for (std::size_t day = 0; day < m_days.size(); ++day) Day(day).setChecked(m_days[day]);
}

void CRecurrencePatternPage::TapDay(int day) {
  const DayToggled toggled = ToggleDay(m_days, day);
  ShowDays();
  if (toggled == DayToggled::LastDayStays)
    g_services.Prompt->Show({.Text = QStringLiteral("At least one day must be selected.")});
}

}  // namespace quill
