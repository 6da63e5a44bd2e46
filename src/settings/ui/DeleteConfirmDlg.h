// Asks before contacts are deleted, as g_deleteScope says. DoModal returns kResultOK or
// kResultCancel.
#pragma once

#include "platform/ui/Dialog.h"
#include "settings/DeleteScope.h"

namespace quill {

class CDeleteConfirmDlg : public CDialog {
  Q_OBJECT
 public:
  explicit CDeleteConfirmDlg(CScreen& screen);

 protected:
  void OnInitDialog() override;
};

// Sets g_deleteScope and asks. True when the contacts shall go.
bool ConfirmContactDeletion(CScreen& screen, DeleteScope scope);

}  // namespace quill
