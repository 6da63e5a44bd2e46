// The About box: title, version, maker, licence and OK.
#pragma once

#include "platform/ui/Dialog.h"

namespace quill {

class CAboutDialog : public CDialog {
  Q_OBJECT
 public:
  explicit CAboutDialog(CScreen& screen) : CDialog(screen, resources::kAboutDialog) {}
};

}  // namespace quill
