// The plain desktop window around the pen screen. The desktop may give it any size: the screen
// stands in its centre, dark around.
#pragma once

#include <QWidget>

#include <functional>

namespace quill {

class COuterWindow : public QWidget {
  Q_OBJECT
 public:
  COuterWindow();

  // The screen: a child of this window.
  void SetScreen(QWidget* screen);
  void ShowWindowed();
  void ShowOnFullScreen();
  // Called when the desktop asks the window to close; the window itself does not.
  std::function<void()> CloseAsked;
  // Called once, soon after the window was painted for the first time.
  std::function<void()> Painted;
  // Files that somebody drops on the window: whether they may just now, and which they were.
  std::function<bool()> MayDrop;
  std::function<void(const QStringList& files)> FilesDropped;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void CentreScreen();
  void HandOn(QKeyEvent* event);

  QWidget* m_screen = nullptr;
  bool m_handingOn = false;
};

}  // namespace quill
