#include "platform/ui/ModalWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Shade.h"

namespace quill {

int CModalWindow::DoModal() {
  if (Screen().IsClosing()) return kResultCancel;
  CommitInput();
  Screen().DropPopup();
  const QPointer<QWidget> focusBefore = window()->focusWidget();
  CShade shade(Screen());
  m_result.reset();
  Screen().Push(*this);
  FitVisibleArea();
  OnInitDialog();
  show();
  raise();
  Screen().UpdateChrome();
  WaitForEnd();
  CommitInput();
  hide();
  Screen().Remove(*this);
  GiveFocusBack(focusBefore);
  return m_result.value_or(kResultCancel);
}

// The panel may be up already.
void CModalWindow::FitVisibleArea() {
  if (g_services.InputPanel) OnVisibleAreaChanged(g_services.InputPanel->VisibleArea());
}

// Where nothing had it before, the hidden window's control must not keep it.
void CModalWindow::GiveFocusBack(QWidget* before) {
  QWidget* const now = window()->focusWidget();
  if (before)
    before->setFocus(Qt::ActiveWindowFocusReason);
  else if (now)
    now->clearFocus();
}

void CModalWindow::WaitForEnd() {
  if (!m_result) FocusFirstControl();
  if (m_result) return;
  QEventLoop loop;
  m_loop = &loop;
  loop.exec(QEventLoop::DialogExec);
  m_loop = nullptr;
}

void CModalWindow::OnVisibleAreaChanged(QRect area) {
  if (Size() == WindowSize::FullScreen) return;
  const int lowest = std::max(area.bottom() + 1 - height(), 0);
  move(x(), std::min(y(), lowest));
}

void CModalWindow::EndDialog(int result) {
  m_result = result;
  if (m_loop) m_loop->quit();
}

void CModalWindow::FocusFirstControl() {
  setFocus(Qt::ActiveWindowFocusReason);
  focusNextPrevChild(true);
}

void CModalWindow::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = !event->modifiers().testFlag(Qt::ControlModifier);
  const bool isReturn =
      isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter);
  const bool isEscape = event->key() == Qt::Key_Escape;
  if (!isReturn && !isEscape) return CWindow::keyPressEvent(event);
  if (event->isAutoRepeat()) return;  // a held key ends one window, not the next one too
  CommitInput();
  auto* const button = qobject_cast<QPushButton*>(QApplication::focusWidget());
  if (isEscape)
    OnCancel();
  else
    button ? button->click() : OnOK();
}

void CModalWindow::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), palette().color(QPalette::Window));
}

}  // namespace quill
