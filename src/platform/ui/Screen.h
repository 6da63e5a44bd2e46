// The pen screen: 240 x 320 logical pixels with title bar, client area, menu bar and the stack of
// windows. A child of the outer desktop window, centred in it.
#pragma once

#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

#include "platform/MenuModel.h"
#include "platform/ui/Window.h"

namespace quill {

class CMenuBar;
class CMenuPopup;
class CTitleBar;

inline constexpr QSize kScreenSize = {240, 320};
inline constexpr QRect kTitleBarArea = {0, 0, 240, 26};
inline constexpr QRect kClientArea = {0, 26, 240, 270};
inline constexpr QRect kMenuBarArea = {0, 296, 240, 24};

class CScreen : public QWidget {
  Q_OBJECT
 public:
  explicit CScreen(QWidget* outer);
  ~CScreen() override;

  // The window stack, bottom to top. Windows enter and leave it by themselves.
  const std::vector<CWindow*>& Windows() const { return m_windows; }
  // The uppermost window that takes commands: the card never does. Null while there is none.
  CWindow* Topmost() const;
  void Push(CWindow& window);
  void Remove(CWindow& window);

  // The innermost open popup menu, or null.
  CMenuPopup* Popup() const { return m_popup; }
  void SetPopup(CMenuPopup* popup);
  // Opens a popup at a point of the screen and returns the chosen id, 0 when dismissed.
  int TrackMenu(QPoint at, const std::vector<MenuItem>& items);

  // The commands behind a tap-and-hold on the title bar, run by the topmost window's route and then
  // by the application's.
  void SetApplicationRoute(const CommandRoute& route);
  const CommandRoute& ApplicationRoute() const { return m_applicationRoute; }
  void ShowShellMenu(QPoint at);

  // Title bar and menu bar follow the topmost window again.
  void UpdateChrome();

  // Ends popups and modal windows from the top with Cancel, then calls Closed.
  void CloseAll();
  bool IsClosing() const { return m_closing; }
  std::function<void()> Closed;

  // True when nothing modal is open: the only time at which the scale may change.
  bool IsIdle() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  std::vector<CWindow*> m_windows;
  CTitleBar* m_titleBar;
  CMenuBar* m_menuBar;
  CMenuPopup* m_popup = nullptr;
  CommandRoute m_applicationRoute;
  bool m_closing = false;
  bool m_altAlone = false;
};

}  // namespace quill
