#include "platform/ui/OuterWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QUrl>

#include <utility>

#include "platform/ScreenLayout.h"

namespace quill {

namespace {

constexpr QRgb kSurround = 0xFF202428;

QStringList LocalFiles(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls())
    if (url.isLocalFile()) files.append(url.toLocalFile());
  return files;
}

// A copy, whatever is proposed: a file that was moved here its owner would delete.
void AcceptCopy(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

COuterWindow::COuterWindow() {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAcceptDrops(true);
}

void COuterWindow::SetScreen(QWidget* screen) {
  m_screen = screen;
  CentreScreen();
}

void COuterWindow::ShowWindowed() {
  setFixedSize(kScreenWidth, kScreenHeight);
  show();
}

void COuterWindow::ShowOnFullScreen() {
  setMinimumSize(kScreenWidth, kScreenHeight);
  setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  setGeometry(screen()->geometry());  // where no window manager does it
  showFullScreen();
}

void COuterWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (CloseAsked) CloseAsked();
}

void COuterWindow::resizeEvent(QResizeEvent*) { CentreScreen(); }

void COuterWindow::CentreScreen() {
  if (!m_screen) return;
  m_screen->move((width() - kScreenWidth) / 2, (height() - kScreenHeight) / 2);
}

void COuterWindow::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), QColor::fromRgb(kSurround));
  if (Painted) QTimer::singleShot(0, this, std::exchange(Painted, nullptr));
}

void COuterWindow::dragEnterEvent(QDragEnterEvent* event) {
  const bool isWanted = FilesDropped && MayDrop && MayDrop();
  if (isWanted && !LocalFiles(*event->mimeData()).isEmpty()) AcceptCopy(*event);
}

void COuterWindow::dropEvent(QDropEvent* event) {
  AcceptCopy(*event);
  if (FilesDropped) FilesDropped(LocalFiles(*event->mimeData()));
}

// Keys reach this window itself only while nothing in the screen has the focus.
void COuterWindow::HandOn(QKeyEvent* event) {
  if (!m_screen || m_handingOn || m_screen->isAncestorOf(focusWidget())) return;
  m_handingOn = true;  // what the screen leaves comes back here, as to its parent
  QCoreApplication::sendEvent(m_screen, event);
  m_handingOn = false;
}

void COuterWindow::keyPressEvent(QKeyEvent* event) { HandOn(event); }

void COuterWindow::keyReleaseEvent(QKeyEvent* event) { HandOn(event); }

}  // namespace quill
