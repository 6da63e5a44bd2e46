// The preview of one appointment: what it is and when, its note to look at, and two buttons. It
// changes nothing: DoModal answers kModifyResult, kDeleteResult, or kResultCancel however else it
// is closed. An appointment that cannot be read is shown as an empty window.
//
// Its note stands in g_memo.Buffer from its opening on; with the dialog it goes.
#pragma once

#include "platform/ui/Dialog.h"
#include "store/ContactRecord.h"

namespace quill {

class CAppointmentPreviewFace;
class InkX;

class CAppointmentPreviewDlg : public CDialog {
  Q_OBJECT
 public:
  CAppointmentPreviewDlg(CScreen& screen, Oid appointment);
  ~CAppointmentPreviewDlg() override;

  CommandRoute Route() const override;
  void OnOK() override { OnCancel(); }
  void OnVisibleAreaChanged(QRect area) override { setGeometry(area); }

 protected:
  void OnInitDialog() override;
  void FocusFirstControl() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PlaceParts();

  const Oid m_appointment;
  CommandTarget m_commands;
  // Children, made by OnInitDialog for an appointment that can be read.
  CAppointmentPreviewFace* m_face = nullptr;
  InkX* m_ink = nullptr;
  QWidget* m_frame = nullptr;  // over the note
};

}  // namespace quill
