// The pen screen: 240 x 320 logical pixels with title bar, client area, menu bar and the stack of
// windows. A child of the outer desktop window, centred in it.
#pragma once

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

#include "platform/ScreenLayout.h"
#include "platform/ui/PenWatch.h"
#include "platform/ui/Window.h"

namespace quill {

class CKeyPanel;
class CMenuBar;
class CMenuPopup;
class CTitleBar;
class PreeditWatch;
struct TitleNotice;

inline constexpr QRect kTitleBarArea{0, 0, kScreenWidth, kTitleBarHeight};
inline constexpr QRect kClientArea{0, kTitleBarHeight, kScreenWidth, kClientHeight};
inline constexpr QRect kMenuBarArea{0, kScreenHeight - kMenuBarHeight, kScreenWidth,
                                    kMenuBarHeight};

class CScreen : public QWidget {
  Q_OBJECT
 public:
  explicit CScreen(QWidget* outer);
  ~CScreen() override;

  // The window stack, bottom to top. Windows enter and leave it by Push and Remove; the screen owns
  // none of them.
  const std::vector<CWindow*>& Windows() const { return m_windows; }
  void Push(CWindow& window);
  void Remove(CWindow& window);
  // The uppermost window that takes commands: the card never does. Null while there is none.
  CWindow* Topmost() const;

  // The open popup menu (its root, when a submenu is open), or null.
  CMenuPopup* Popup() const { return m_popup; }
  void SetPopup(CMenuPopup* popup) { m_popup = popup; }
  // Dismisses the open popup and takes it out of sight at once.
  void DropPopup();
  // Opens a popup at a point of the screen and returns the chosen id, 0 when dismissed.
  int TrackMenu(QPoint at, const std::vector<MenuItem>& items);

  // Runs a command in the topmost window, as its menu does.
  void RunCommand(int id);
  // The commands that every window has: the input panel's button and the application's own.
  const CommandTarget& ScreenCommands() const { return m_screenCommands; }
  MenuItem InputPanelButton() const;
  // The application's commands behind a tap-and-hold on the title bar. Not owned; may be null.
  void SetShellCommands(const CommandTarget* commands) { m_shellCommands = commands; }
  void ShowShellMenu(QPoint at);
  void RunShellCommand(int id);

  // Says something beside every caption; null: no longer. A tap on it, and Escape where no window
  // has a use for that, runs its command.
  void ShowNotice(const std::optional<TitleNotice>& notice);

  // Title bar and menu bar show the topmost full-screen window and stand above its shade; the keys
  // stand above every shade but a popup's.
  void UpdateChrome();

  // What is being composed in an editor.
  PreeditWatch& Preedit() const { return *m_preedit; }

  // True when title bar and menu bar can be used: no popup and no small window lies over them.
  bool IsChromeUsable() const;
  // True when no other window and no popup is open: the only time at which the scale may change.
  bool IsIdle() const;
  // True while a pen touches any window: nothing may open or change under it then.
  bool IsPenDown() const { return m_penWatch.IsDown(); }
  // Neither: what nobody at the screen asked for may happen.
  bool IsUndisturbed() const { return IsIdle() && !IsPenDown(); }
  const PenWatch& Pens() const { return m_penWatch; }
  // Ends popup and modal windows from the top with Cancel, then calls Closed.
  void CloseAll();
  bool IsClosing() const { return m_closing; }
  std::function<void()> Closed;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool HandleKey(QKeyEvent* event);
  bool RunKeyCommand(int id);
  void ShowContextMenu();
  CWindow* ChromeOwner() const;
  void TellVisibleArea();
  void ShowKeys();
  void RaiseKeys();

  std::vector<CWindow*> m_windows;
  CTitleBar* m_titleBar;
  CMenuBar* m_menuBar;
  PreeditWatch* m_preedit;
  CKeyPanel* m_keys;
  CMenuPopup* m_popup = nullptr;
  PenWatch m_penWatch;
  CommandTarget m_screenCommands;
  const CommandTarget* m_shellCommands = nullptr;
  bool m_closing = false;
  bool m_altAlone = false;  // Alt is down and nothing else was pressed since
};

// The screen that a window stands in; null outside of one.
CScreen* ScreenAround(QWidget* widget);

}  // namespace quill
