#include "platform_ui/ScreenFixture.h"

#include <QApplication>

#include "platform/KeyPanelState.h"
#include "platform/Services.h"
#include "platform/ui/Accessibility.h"
#include "platform/ui/Look.h"
#include "platform/ui/PaintedWindow.h"

namespace quill::test {

namespace {

std::unique_ptr<COuterWindow> MakeOuterWindow(Timers& timers, InputPanel& panel) {
  SetUpLook(*qApp);
  InstallAccessibility();
  g_services.Timers = &timers;
  g_services.InputPanel = &panel;
  return std::make_unique<COuterWindow>();
}

}  // namespace

ScreenFixture::ScreenFixture()
    : m_outer(MakeOuterWindow(m_timers, m_panel)),
      m_screen(new CScreen(m_outer.get())),
      m_input(*m_screen) {
  m_outer->SetScreen(m_screen);
  m_outer->CloseAsked = [this] { m_screen->CloseAll(); };
  m_outer->ShowWindowed();
  QCoreApplication::processEvents();  // now the window is active
}

ScreenFixture::~ScreenFixture() {
  m_outer.reset();
  g_keyPanel = {};
  g_services = {};
}

QRect ScreenFixture::RowNamed(const CPaintedWindow& window, const QString& name) const {
  for (const PaintedRow& row : window.Rows())
    if (row.SpokenName == name)
      return row.Rectangle.translated(window.mapTo(m_screen, QPoint(0, 0)));
  return {};
}

}  // namespace quill::test
