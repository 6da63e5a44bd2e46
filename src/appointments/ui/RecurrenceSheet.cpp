#include "appointments/ui/RecurrenceSheet.h"

#include <QPushButton>

#include "appointments/ui/RecurrencePatternPage.h"
#include "appointments/ui/RecurrenceRangePage.h"
#include "platform/ui/ControlFactory.h"
#include "resources/RecurrenceDialogs.h"

namespace quill {

CRecurrenceSheet::CRecurrenceSheet(CScreen& screen, const RecurrencePattern& pattern,
                                   QDate startDay)
    : CSheet(screen, QStringLiteral("Recurrence"), SheetTabs::None), m_pattern(pattern) {
  AddPage(*new CRecurrencePatternPage(*this, m_pattern, startDay));
  AddPage(*new CRecurrenceRangePage(*this, m_pattern, startDay));
  MakeButtons();
}

void CRecurrenceSheet::MakeButtons() {
  for (const resources::DialogControl& control : resources::kRecurrenceSheetControls)
    AddControl(control.Id, MakeControl(control, Screen(), this));
  const auto button = [this](int id) { return qobject_cast<QPushButton*>(Control(id)); };
  m_back = button(RecurrenceSheetIds::kBack);
  m_next = button(RecurrenceSheetIds::kNext);
  connect(button(kResultCancel), &QPushButton::clicked, this, [this] { OnCancel(); });
  connect(m_back, &QPushButton::clicked, this, [this] { GoBack(); });
  connect(m_next, &QPushButton::clicked, this, [this] { GoNext(); });
}

QRect CRecurrenceSheet::PageArea() const {
  return {0, 0, width(), resources::kRecurrencePageHeight};
}

bool CRecurrenceSheet::IsOnLastPage() const {
  return ActiveIndex() + 1 == static_cast<int>(Pages().size());
}

void CRecurrenceSheet::OnPageShown() {
  m_back->setEnabled(ActiveIndex() > 0);
  m_next->setText(IsOnLastPage() ? QStringLiteral("Done") : QStringLiteral("Next"));
}

void CRecurrenceSheet::GoNext() { IsOnLastPage() ? OnOK() : ShowPage(ActiveIndex() + 1); }

void CRecurrenceSheet::GoBack() {
  if (ActiveIndex() > 0) ShowPage(ActiveIndex() - 1);
}

}  // namespace quill
