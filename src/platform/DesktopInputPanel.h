// The input panel's state on a desktop: up or down and nothing else. The key panel that stands on
// the screen while it is up is a window's work.
#pragma once

#include "platform/InputPanel.h"

namespace quill {

class DesktopInputPanel : public InputPanel {
 public:
  bool IsUp() const override { return m_up; }
  QRect VisibleArea() const override;
  void Raise() override { SetUp(true); }
  void Lower() override { SetUp(false); }

 private:
  void SetUp(bool up);

  bool m_up = false;
};

}  // namespace quill
