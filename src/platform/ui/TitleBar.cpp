#include "platform/ui/TitleBar.h"

#include <algorithm>

#include "platform/Hold.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr int kHoldTimer = 1;
constexpr int kHoldTolerance = 6;  // pixels that a held pen may tremble

}  // namespace

CTitleBar::CTitleBar(CScreen& screen)
    : CPaintedWindow(&screen, QAccessible::TitleBar), m_screen(screen) {
  setGeometry(kTitleBarArea);
  setAccessibleName(QStringLiteral("Title bar"));
  SetBackground(kTitleBackground);
}

CTitleBar::~CTitleBar() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

void CTitleBar::ShowFor(const CWindow* window) {
  m_model.Caption = window ? window->Caption() : QString();
  m_model.HasOK = window && window->HasOK();
  m_model.HasClose = window != nullptr;
  LayOut();
}

void CTitleBar::SetNotice(const std::optional<TitleNotice>& notice) {
  if (m_model.Notice == notice) return;
  m_model.Notice = notice;
  LayOut();
  if (!notice) return;
  QAccessibleEvent event(this, QAccessible::Alert);
  event.setChild(RowOf(kTitleNoticeKey));
  QAccessible::updateAccessibility(&event);
}

bool CTitleBar::AnswerNotice() {
  if (!m_model.Notice) return false;
  m_screen.RunShellCommand(m_model.Notice->Command);
  return true;
}

int CTitleBar::RowOf(int key) const {
  const auto row = std::ranges::find(Rows(), key, &PaintedRow::Key);
  return row == Rows().end() ? -1 : static_cast<int>(row - Rows().begin());
}

void CTitleBar::LayOut() { SetRows(LayOutTitleBar(m_model, size())); }

int CTitleBar::KeyAt(QPoint at) const {
  const int row = RowAt(at);
  return row < 0 ? -1 : Rows()[static_cast<std::size_t>(row)].Key;
}

void CTitleBar::SetPressed(int key) {
  m_model.Pressed = key;
  LayOut();
}

void CTitleBar::PenPress(QPoint at) {
  m_pressedAt = at;
  SetPressed(KeyAt(at));
  if (m_model.Pressed <= kTitleTextKey)
    g_services.Timers->Set(*this, kHoldTimer, kHoldMilliseconds);
}

void CTitleBar::PenMove(QPoint at) {
  if ((at - m_pressedAt).manhattanLength() > kHoldTolerance)
    g_services.Timers->Kill(*this, kHoldTimer);
}

void CTitleBar::PenRelease(QPoint at) {
  g_services.Timers->Kill(*this, kHoldTimer);
  const int pressed = m_model.Pressed;
  SetPressed(-1);
  if (pressed == KeyAt(at)) Press(pressed);
}

void CTitleBar::Press(int key) {
  CWindow* const window = m_screen.Topmost();
  if (!window || !m_screen.IsChromeUsable()) return;
  CommitInput();
  if (key == kTitleOKKey) window->OnOK();
  if (key == kTitleCloseKey) window->OnCancel();
  if (key == kTitleNoticeKey) AnswerNotice();
}

void CTitleBar::OnTimer(int id) {
  g_services.Timers->Kill(*this, id);
  SetPressed(-1);
  m_screen.ShowShellMenu(m_pressedAt);
}

void CTitleBar::ActivateRow(int row) { Press(Rows()[static_cast<std::size_t>(row)].Key); }

void CTitleBar::ShowRowMenu(int) {
  if (m_screen.IsChromeUsable()) m_screen.ShowShellMenu(rect().bottomLeft());
}

}  // namespace quill
