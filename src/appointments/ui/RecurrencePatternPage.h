// The wizard's page of the pattern: a strip on which the kind is chosen, and that kind's controls.
// Its rules stand in RecurrencePages.h.
#pragma once

#include <vector>

#include "appointments/RecurrencePages.h"
#include "platform/ui/SheetPage.h"

class QComboBox;
class QRadioButton;

namespace quill {

class CPictureToggle;
class CRecurrenceKindTabs;
class CTypedDropDown;

class CRecurrencePatternPage : public CSheetPage {
  Q_OBJECT
 public:
  // Reads and writes the pattern, which outlives the page. start: the appointment's first day.
  CRecurrencePatternPage(CSheet& sheet, RecurrencePattern& pattern, QDate start);

  void LoadRows() override;
  void StoreRows() override;

 private:
  void MakeControls();
  void FillLists();
  void JoinRadioButtons(int first, int second);
  void FollowLists();
  void FollowDays();

  CTypedDropDown& Typed(int id) const;
  QComboBox& List(int id) const;
  QRadioButton& Radio(int id) const;
  CPictureToggle& Day(std::size_t day) const;

  void ShowKind();
  void ShowDays();
  void TapDay(int day);
  PatternEntries Entries() const;

  RecurrencePattern& m_pattern;
  const QDate m_start;
  CRecurrenceKindTabs* m_kinds;
  std::array<std::vector<QWidget*>, 4> m_kindControls;
  WeekDayToggles m_days = {};
};

}  // namespace quill
