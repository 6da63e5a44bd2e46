#include "platform/ui/CalendarDlg.h"

#include <QPushButton>

#include "platform/ChromeLayout.h"
#include "platform/Clock.h"
#include "platform/Services.h"
#include "platform/ui/CalendarView.h"
#include "resources/CalendarDialog.h"

namespace quill {

namespace {

QDate Today() { return g_services.Clock->Now().date(); }

}  // namespace

CCalendarDlg::CCalendarDlg(CScreen& screen, QDate date)
    : CDialog(screen, resources::kCalendarDialog), m_view(new CCalendarView(date, Today(), this)) {
  const resources::Rectangle& place = resources::kCalendarMonth;
  m_view->setGeometry(place.X, kSmallCaptionHeight + place.Y, place.Width, place.Height);
  m_view->Chosen = [this] { OnOK(); };
  AddControl(CalendarIds::kMonth, m_view);
  connect(qobject_cast<QPushButton*>(Control(CalendarIds::kToday)), &QPushButton::clicked, this,
          [this] { Choose(Today()); });
}

void CCalendarDlg::FocusFirstControl() { m_view->setFocus(Qt::ActiveWindowFocusReason); }

void CCalendarDlg::OnOK() { Choose(m_view->Current()); }

void CCalendarDlg::Choose(QDate date) {
  m_date = KeepInCalendar(date);
  CDialog::OnOK();
}

}  // namespace quill
