#include "platform/ui/CalendarDlg.h"

#include <QPushButton>

#include "platform/ChromeLayout.h"
#include "platform/ui/CalendarView.h"
#include "resources/CalendarDialog.h"

namespace quill {

CCalendarDlg::CCalendarDlg(CScreen& screen, QDate date, QDate today)
    : CDialog(screen, resources::kCalendarDialog), m_view(new CCalendarView(date, today, this)) {
  const resources::Rectangle& place = resources::kCalendarMonth;
  m_view->setGeometry(place.X, kSmallCaptionHeight + place.Y, place.Width, place.Height);
  m_view->Chosen = [this] { OnOK(); };
  AddControl(CalendarIds::kMonth, m_view);
  connect(qobject_cast<QPushButton*>(Control(CalendarIds::kToday)), &QPushButton::clicked, this,
          [this, today] { Choose(today); });
}

void CCalendarDlg::FocusFirstControl() { m_view->setFocus(Qt::ActiveWindowFocusReason); }

void CCalendarDlg::OnOK() { Choose(m_view->Current()); }

void CCalendarDlg::Choose(QDate date) {
  m_date = KeepInCalendar(date);
  CDialog::OnOK();
}

}  // namespace quill
