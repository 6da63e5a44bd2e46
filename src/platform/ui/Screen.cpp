#include "platform/ui/Screen.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/Shortcuts.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/KeyPanel.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/MenuPopup.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/PreeditWatch.h"
#include "platform/ui/TitleBar.h"
#include "resources/KeyCommandIds.h"
#include "resources/Menus.h"

namespace quill {

namespace {

void ToggleInputPanel() {
  InputPanel* const panel = g_services.InputPanel;
  if (!panel) return;
  panel->IsUp() ? panel->Lower() : panel->Raise();
}

template <typename Condition>
CWindow* TopmostOf(const std::vector<CWindow*>& windows, Condition holds) {
  const auto found = std::find_if(windows.rbegin(), windows.rend(),
                                  [&holds](const CWindow* window) { return holds(*window); });
  return found == windows.rend() ? nullptr : *found;
}

}  // namespace

CScreen::CScreen(QWidget* outer)
    : QWidget(outer),
      m_titleBar(new CTitleBar(*this)),
      m_menuBar(new CMenuBar(*this)),
      m_preedit(new PreeditWatch(this)),
      m_keys(new CKeyPanel(*this, *m_preedit)),
      m_screenCommands(
          {{ID_SHELL_INPUT_PANEL, ID_SHELL_INPUT_PANEL, [](int) { ToggleInputPanel(); },
            [](int, CommandState& state) {
              state.Enabled = g_services.InputPanel != nullptr;
              state.Checked = state.Enabled && g_services.InputPanel->IsUp();
            }},
           {ID_KEY_OK, ID_KEY_OK, [this](int) { Topmost()->OnOK(); },
            [this](int, CommandState& state) { state.Enabled = Topmost() && Topmost()->HasOK(); }},
           {ID_KEY_CLOSE, ID_KEY_CLOSE, [this](int) { Topmost()->OnCancel(); },
            [this](int, CommandState& state) { state.Enabled = Topmost() != nullptr; }},
           {ID_KEY_MENU_BAR, ID_KEY_MENU_BAR, [this](int) { m_menuBar->OpenFirstMenu(); }},
           {ID_KEY_CONTEXT_MENU, ID_KEY_CONTEXT_MENU, [this](int) { ShowContextMenu(); }},
           {ID_KEY_TITLE_MENU, ID_KEY_TITLE_MENU,
            [this](int) { ShowShellMenu(kTitleBarArea.bottomLeft()); }}}) {
  setFixedSize(kScreenWidth, kScreenHeight);
  m_preedit->SetKeys(m_keys);
  QCoreApplication::instance()->installEventFilter(this);
  if (g_services.InputPanel) g_services.InputPanel->Changed = [this] { TellVisibleArea(); };
  UpdateChrome();
  ShowKeys();
}

CScreen::~CScreen() {
  if (g_services.InputPanel) g_services.InputPanel->Changed = nullptr;
}

void CScreen::DropPopup() {
  if (!m_popup) return;
  m_popup->Dismiss();
  m_popup->hide();
  m_popup = nullptr;
}

void CScreen::Push(CWindow& window) {
  m_windows.push_back(&window);
  UpdateChrome();
}

void CScreen::Remove(CWindow& window) {
  std::erase(m_windows, &window);
  UpdateChrome();
}

CWindow* CScreen::Topmost() const {
  return TopmostOf(m_windows, [](const CWindow& w) { return w.Kind() != WindowKind::Card; });
}

CWindow* CScreen::ChromeOwner() const {
  return TopmostOf(m_windows, [](const CWindow& w) { return w.Size() == WindowSize::FullScreen; });
}

void CScreen::UpdateChrome() {
  CWindow* const owner = ChromeOwner();
  m_titleBar->ShowFor(owner);
  m_menuBar->ShowFor(owner);
  if (IsChromeUsable()) {
    m_titleBar->raise();
    m_menuBar->raise();
  }
  RaiseKeys();
}

// A small window so tall that it reaches below them stands before them.
void CScreen::RaiseKeys() {
  const CWindow* const top = Topmost();
  const bool covered =
      top && top->Size() == WindowSize::Small && top->geometry().intersects(kKeyPanelArea);
  if (!m_popup && !covered) m_keys->raise();
}

// What was composed with them is text before they go.
void CScreen::ShowKeys() {
  const bool up = g_services.InputPanel && g_services.InputPanel->IsUp();
  if (!up) CommitInput();
  m_keys->setVisible(up);
}

int CScreen::TrackMenu(QPoint at, const std::vector<MenuItem>& items) {
  CMenuPopup popup(*this, items, QRect(at, QSize(0, 0)));
  return popup.Track();
}

void CScreen::RunCommand(int id) {
  if (CWindow* const window = Topmost()) window->RunCommand(id);
}

MenuItem CScreen::InputPanelButton() const {
  CommandRoute route;
  route.Add(m_screenCommands);
  const CommandState state = route.State(ID_SHELL_INPUT_PANEL);
  return {.Text = QStringLiteral("Input panel"),
          .Id = ID_SHELL_INPUT_PANEL,
          .Enabled = state.Enabled,
          .Checked = state.Checked,
          .Picture = &resources::kKeyboardPicture};
}

void CScreen::ShowShellMenu(QPoint at) {
  if (!m_shellCommands) return;
  const CWindow* const window = Topmost();
  CommandRoute route = window ? window->Route() : CommandRoute();
  route.Add(*m_shellCommands);
  std::vector<MenuItem> items;
  if (window) items = BuildMenuItems(window->TitleMenu(), route);
  if (!items.empty()) items.push_back({.Separator = true});
  for (MenuItem& item : BuildMenuItems(resources::kShellMenu, route)) items.push_back(item);
  const int id = TrackMenu(at, items);
  if (id != 0) route.Run(id, CommandCheck::AsMenu);
}

void CScreen::TellVisibleArea() {
  UpdateChrome();
  ShowKeys();
  const QRect area = g_services.InputPanel->VisibleArea();
  for (CWindow* window : m_windows) window->OnVisibleAreaChanged(area);
}

bool CScreen::IsChromeUsable() const { return !m_popup && ChromeOwner() == Topmost(); }

bool CScreen::IsIdle() const {
  const auto isOpen = [](const CWindow* window) { return window->Kind() != WindowKind::Card; };
  return !m_popup && std::ranges::count_if(m_windows, isOpen) <= 1;
}

void CScreen::CloseAll() {
  CommitInput();
  m_closing = true;
  if (m_popup) m_popup->Dismiss();
  std::for_each(m_windows.rbegin(), m_windows.rend(), [](CWindow* window) {
    if (auto* const modal = qobject_cast<CModalWindow*>(window)) modal->EndDialog(kResultCancel);
  });
  if (Closed) Closed();
}

void CScreen::keyPressEvent(QKeyEvent* event) {
  if (!HandleKey(event)) QWidget::keyPressEvent(event);
}

bool CScreen::HandleKey(QKeyEvent* event) {
  if (event->isAutoRepeat()) return false;  // a held key ends one window, not the next one too
  if (event->key() == Qt::Key_Escape) return IsChromeUsable() && m_titleBar->AnswerNotice();
  const std::vector<int> commands = CommandsOfKey(event->key(), event->modifiers());
  return std::ranges::any_of(commands, [this](int id) { return RunKeyCommand(id); });
}

// False where the topmost window has no such command, or has no use for it just now.
bool CScreen::RunKeyCommand(int id) {
  const CWindow* const window = Topmost();
  CommandRoute route = window ? window->Route() : CommandRoute();
  route.Add(m_screenCommands);
  if (m_shellCommands) route.Add(*m_shellCommands);
  if (route.Rows(id).empty() || !route.State(id).Enabled) return false;
  CommitInput();
  return route.Run(id, CommandCheck::AsMenu) == CommandResult::Done;
}

void CScreen::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Alt && std::exchange(m_altAlone, false)) m_menuBar->OpenFirstMenu();
}

// Sees every event of the application: whatever else is pressed, Alt was not alone.
bool CScreen::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      m_altAlone = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt;
      break;
    case QEvent::MouseButtonPress:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate:
      m_altAlone = false;
      break;
    default:
      break;
  }
  return false;
}

// The menu key opens the window's own popup; where it has none, the shell's menu.
void CScreen::ShowContextMenu() {
  CWindow* const window = Topmost();
  if (!window || !window->ShowContextMenu()) ShowShellMenu(kTitleBarArea.bottomLeft());
}

void CScreen::ShowNotice(const std::optional<TitleNotice>& notice) {
  m_titleBar->SetNotice(notice);
}

void CScreen::RunShellCommand(int id) {
  if (!m_shellCommands) return;
  CommandRoute route;
  route.Add(*m_shellCommands);
  route.Run(id, CommandCheck::AsMenu);
}

void CScreen::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), palette().color(QPalette::Window));
}

CScreen* ScreenAround(QWidget* widget) {
  while (widget && !qobject_cast<CScreen*>(widget)) widget = widget->parentWidget();
  return qobject_cast<CScreen*>(widget);
}

}  // namespace quill
