#include "platform/ui/Window.h"

#include <QApplication>

#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"

namespace quill {

CWindow::CWindow(CScreen& screen) : QWidget(&screen), m_screen(screen) {
  setGeometry(kClientArea);
  setVisible(false);
}

CWindow::~CWindow() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

void CWindow::SetCaption(const QString& caption) {
  m_caption = caption;
  setAccessibleName(caption);
  m_screen.UpdateChrome();
}

QWidget* CWindow::Control(int id) const {
  const ControlMap controls = Controls();
  const auto found = controls.find(id);
  return found == controls.end() ? nullptr : found->second;
}

MenuBarModel CWindow::MenuBar() const { return {{m_screen.InputPanelButton()}, {}}; }

CommandResult CWindow::RunCommand(int id, CommandCheck check) {
  CommitInput();
  CommandRoute route = Route();
  route.Add(m_screen.ScreenCommands());
  return route.Run(id, check);
}

// The Tab chain belongs to the whole desktop window: keep it inside this one.
bool CWindow::focusNextPrevChild(bool next) {
  QWidget* const from = QApplication::focusWidget();
  QWidget* const start = from ? from : this;
  QWidget* at = start;
  do {
    at = next ? at->nextInFocusChain() : at->previousInFocusChain();
    // One with a proxy is the inside of another control.
    const bool takesTab = (at->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !at->focusProxy();
    if (takesTab && isAncestorOf(at) && at->isVisible() && at->isEnabled()) {
      at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return true;
    }
  } while (at != start);
  return true;
}

}  // namespace quill
