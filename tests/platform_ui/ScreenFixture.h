// A fixture with the pen screen in its desktop window, shown, and the services that it needs.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "platform/DesktopInputPanel.h"
#include "platform/ui/OuterWindow.h"
#include "platform/ui/Screen.h"
#include "platform_ui/ScreenInput.h"
#include "platform_ui/Steps.h"
#include "support/SteppedTimers.h"

namespace quill {
class CPaintedWindow;
}

namespace quill::test {

class ScreenFixture : public testing::Test {
 protected:
  ScreenFixture();
  ~ScreenFixture() override;

  // What stands at this point of the screen.
  QWidget* WidgetAt(QPoint at) const { return m_screen->childAt(at); }
  // A row of a painted window by its spoken name, in pixels of the screen; null when there is none.
  QRect RowNamed(const CPaintedWindow& window, const QString& name) const;

  SteppedTimers m_timers;
  DesktopInputPanel m_panel;
  std::unique_ptr<COuterWindow> m_outer;
  CScreen* m_screen;  // the outer window's child
  ScreenInput m_input;
};

}  // namespace quill::test
