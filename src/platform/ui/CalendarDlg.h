// A calendar inside the frame, from which a day is chosen: by a tap, by its Today button, or by
// keys and Return.
#pragma once

#include <QDate>

#include "platform/ui/Dialog.h"

namespace quill {

class CCalendarView;

class CCalendarDlg : public CDialog {
  Q_OBJECT
 public:
  CCalendarDlg(CScreen& screen, QDate date);

  // After OK: the chosen day, always among the calendar's.
  QDate Date() const { return m_date; }
  void OnOK() override;

 protected:
  void FocusFirstControl() override;

 private:
  void Choose(QDate date);

  CCalendarView* m_view;
  QDate m_date;
};

}  // namespace quill
