#include "app/ui/MainFrame.h"

#include <QEvent>

#include <utility>

#include "list/ListState.h"
#include "list/ui/ContactsView.h"
#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "resources/Menus.h"
#include "resources/Strings.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr int kWatchTimer = 1;
constexpr int kWatchInterval = 250;  // milliseconds

}  // namespace

CMainFrame::CMainFrame(CScreen& screen, const CommandTarget& applicationCommands)
    : CWindow(screen), m_view(new CContactsView(this)), m_applicationCommands(applicationCommands) {
  m_view->setGeometry(rect());
  SetCaption(kApplicationTitle.toString());
  screen.Push(*this);
}

CMainFrame::~CMainFrame() { Screen().Remove(*this); }

ControlMap CMainFrame::Controls() const { return m_view->Controls(); }

MenuBarModel CMainFrame::MenuBar() const {
  const CommandRoute route = Route();
  const MenuItem newContact{.Text = QStringLiteral("New"),
                            .Id = ID_FILE_NEW,
                            .Enabled = route.State(ID_FILE_NEW).Enabled};
  return {{newContact, Screen().InputPanelButton()}, BuildMenus(resources::kMainMenu, route)};
}

CommandRoute CMainFrame::Route() const {
  CommandRoute route = m_view->Route();
  route.Add(m_applicationCommands);
  return route;
}

void CMainFrame::OnCancel() { Screen().CloseAll(); }

void CMainFrame::PostStoreMessage(int number, int first, int second) {
  QMetaObject::invokeMethod(
      this, [=, this] { HandleStoreMessage(number, first, second); }, Qt::QueuedConnection);
}

void CMainFrame::HandleStoreMessage(int number, int first, int second) {
  switch (number) {
    case kMessageItemWritten:
    case kMessageItemDeleted:
    case kMessageStoreChanged:
      return m_view->OnStoreNotice(first, second);
    case kMessageStoreNotice:
      return m_view->OnStoreNotice(0, 0);
    default:
      return;
  }
}

bool CMainFrame::CopyData(int kind, const QString& text) { return m_view->OnCopyData(kind, text); }

void CMainFrame::WatchStore() {
  if (g_store.Provider) g_services.Timers->Set(*this, kWatchTimer, kWatchInterval);
}

void CMainFrame::OnTimer(int id) {
  if (id == kWatchTimer && window()->isVisible() && !window()->isMinimized()) LookForChanges();
}

void CMainFrame::LookForChanges() {
  if (!g_store.Provider) return;
  const qint64 changes = g_store.Provider->Changes();
  if (changes == std::exchange(g_store.ChangesSeen, changes)) return;
  g_list.RebuildDue = true;  // also when a change of scale overtakes the message
  PostStoreMessage(kMessageItemWritten, 0, 0);
}

bool CMainFrame::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate) KeepInputPanel();
  if (event->type() == QEvent::WindowActivate) {
    RestoreInputPanel();
    LookForChanges();
  }
  return CWindow::event(event);
}

void CMainFrame::KeepInputPanel() {
  m_panelWasUp = g_services.InputPanel && g_services.InputPanel->IsUp();
}

void CMainFrame::RestoreInputPanel() {
  if (m_panelWasUp && !g_services.InputPanel->IsUp()) g_services.InputPanel->Raise();
}

}  // namespace quill
