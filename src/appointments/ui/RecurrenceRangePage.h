// The wizard's page of the range: whether and how the pattern ends. Its rules stand in
// RecurrencePages.h.
#pragma once

#include "appointments/RecurrencePages.h"
#include "platform/ui/SheetPage.h"

class QRadioButton;

namespace quill {

class CDatePicker;
class CTypedDropDown;

class CRecurrenceRangePage : public CSheetPage {
  Q_OBJECT
 public:
  // Reads and writes the pattern, which outlives the page. start: the appointment's first day.
  CRecurrenceRangePage(CSheet& sheet, RecurrencePattern& pattern, QDate start);

  void LoadRows() override;
  // After that of the pattern's page.
  void StoreRows() override;
  void BecomeActive() override;

 private:
  QRadioButton& Radio(RangeEnd end) const;
  RangeEnd End() const;
  CDatePicker& Date() const;
  CTypedDropDown& Occurrences() const;

  RecurrencePattern& m_pattern;
  const QDate m_start;
};

}  // namespace quill
