// The question whether a card that another device pushes is wanted. DoModal returns kResultYes, or
// anything else for no.
#pragma once

#include "infrared/ObexReception.h"
#include "platform/ui/Dialog.h"

namespace quill {

class CConsentDlg : public CDialog {
  Q_OBJECT
 public:
  CConsentDlg(CScreen& screen, const ObexOffer& offer);

  // Whether the next ones of this device are wanted unasked.
  bool IsAlwaysChecked() const;

  // It comes by itself: a key that was meant for something else must not say yes.
  bool HasOK() const override { return false; }
  void OnOK() override {}

 protected:
  void FocusFirstControl() override;

 private:
  void FollowButton(int id);
};

}  // namespace quill
