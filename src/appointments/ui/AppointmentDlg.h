// The appointment dialog: painted rows, and over a row, once it is tapped, the controls that change
// it. The appointment is held from the beginning to the end; nothing of it is stored before OK.
#pragma once

#include <optional>

#include "appointments/ui/AppointmentControls.h"
#include "appointments/ui/AppointmentInk.h"
#include "platform/ui/Dialog.h"

namespace quill {

class CAppointmentRowList;

// What the dialog was opened for.
enum class DialogMode { NewAppointment = 6, ExistingAppointment = 7 };

class CAppointmentDlg : public CDialog {
  Q_OBJECT
 public:
  // A new appointment; subject is what its own begins with.
  CAppointmentDlg(CScreen& screen, const QString& subject);
  // An existing one. One that cannot be read is shown empty, and cannot be saved.
  CAppointmentDlg(CScreen& screen, Oid oid);

  // Saves and ends with OK. Without a subject, and where the store refuses the appointment, the
  // user is told, and the dialog stays.
  void OnOK() override;
  void OnCancel() override;
  // Above the input panel the rows scroll: with the one that is chosen its neighbours come into
  // view.
  void OnVisibleAreaChanged(QRect area) override;

 protected:
  void OnInitDialog() override;
  void FocusFirstControl() override;
  // Escape hides the controls that are shown first.
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  CAppointmentDlg(CScreen& screen, DialogMode mode);

  void TakeAppointment();
  void Choose(std::optional<AppointmentRow> row);
  void ShowRow(AppointmentRow row);
  void ScrollTo(int top);
  void FollowMoments();
  void EditPattern();
  void EditMemo();
  bool Save();

  const DialogMode m_mode;
  QString m_subject;  // of a new appointment
  Oid m_oid = 0;      // of an existing one
  std::optional<AppointmentItem> m_item;
  RecurrencePattern m_pattern = {};     // what the wizard edits
  bool m_isDefaultPattern = false;      // until the wizard edited it
  AppointmentForm m_seen = {};          // whose start and end the pattern has
  std::optional<AppointmentInk> m_ink;  // of m_item
  RecurrenceChoice m_storedChoice = RecurrenceChoice::Once;
  int m_visibleHeight;          // pixels above the input panel
  int m_top = 0;                // pixels that are scrolled out
  CAppointmentRowList* m_rows;  // a child
  AppointmentControls m_controls;
};

}  // namespace quill
