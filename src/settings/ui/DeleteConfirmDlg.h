// Asks before contacts are deleted, as g_deleteScope says. DoModal returns kResultOK or
// kResultCancel.
#pragma once

#include "platform/ui/Dialog.h"

namespace quill {

class CDeleteConfirmDlg : public CDialog {
  Q_OBJECT
 public:
  explicit CDeleteConfirmDlg(CScreen& screen);

 protected:
  void OnInitDialog() override;
};

}  // namespace quill
