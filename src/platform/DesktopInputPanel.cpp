#include "platform/DesktopInputPanel.h"

#include "platform/ScreenLayout.h"

namespace quill {

QRect DesktopInputPanel::VisibleArea() const {
  const int height = m_up ? kClientHeight - kInputPanelHeight : kClientHeight;
  return {0, kTitleBarHeight, kScreenWidth, height};
}

void DesktopInputPanel::SetUp(bool up) {
  if (m_up == up) return;
  m_up = up;
  if (Changed) Changed();
}

}  // namespace quill
