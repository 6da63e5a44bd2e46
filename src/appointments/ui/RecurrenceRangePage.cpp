#include "appointments/ui/RecurrenceRangePage.h"

#include <QRadioButton>

#include "platform/ui/DatePicker.h"
#include "platform/ui/Sheet.h"
#include "platform/ui/TypedDropDown.h"
#include "resources/RecurrenceDialogs.h"

namespace quill {

namespace {

constexpr std::array kEnds = {RangeEnd::Never, RangeEnd::OnDate, RangeEnd::AfterOccurrences};
constexpr std::array kRadioOfEnd = {RecurrenceRangeIds::kDoesNotEnd, RecurrenceRangeIds::kEndsOn,
                                    RecurrenceRangeIds::kEndsAfter};

}  // namespace

CRecurrenceRangePage::CRecurrenceRangePage(CSheet& sheet, RecurrencePattern& pattern, QDate start)
    : CSheetPage(sheet, QStringLiteral("Range")), m_pattern(pattern), m_start(start) {
  for (const resources::DialogControl& control : resources::kRecurrenceRangeControls)
    AddPageControl(control);
  Occurrences().addItems(OfferedOccurrences());
  Occurrences().setInputMethodHints(Qt::ImhDigitsOnly);
  Date().Changed = [this] { Radio(RangeEnd::OnDate).setChecked(true); };
  Occurrences().Changed = [this] { Radio(RangeEnd::AfterOccurrences).setChecked(true); };
}

QRadioButton& CRecurrenceRangePage::Radio(RangeEnd end) const {
  return *qobject_cast<QRadioButton*>(Controls().at(kRadioOfEnd[static_cast<std::size_t>(end)]));
}

CDatePicker& CRecurrenceRangePage::Date() const {
  return *qobject_cast<CDatePicker*>(Controls().at(RecurrenceRangeIds::kEndDate));
}

CTypedDropDown& CRecurrenceRangePage::Occurrences() const {
  return *qobject_cast<CTypedDropDown*>(Controls().at(RecurrenceRangeIds::kOccurrences));
}

RangeEnd CRecurrenceRangePage::End() const {
  for (const RangeEnd end : kEnds)
    if (Radio(end).isChecked()) return end;
  return RangeEnd::Never;
}

void CRecurrenceRangePage::LoadRows() {
  const RangeEntries entries = LoadRangePage(m_pattern, m_start);
  Date().SetDate(entries.Date, {});
  Occurrences().SetText(entries.Occurrences);
  Radio(entries.End).setChecked(true);
}

void CRecurrenceRangePage::StoreRows() {
  WriteRangePage(
      {.End = End(), .Date = Date().ShownDate(), .Occurrences = Occurrences().currentText()},
      m_pattern);
}

void CRecurrenceRangePage::BecomeActive() { Radio(End()).setFocus(Qt::ActiveWindowFocusReason); }

}  // namespace quill
