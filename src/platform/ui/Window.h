// A window of the screen's stack: the main frame, a dialog, a sheet, a message box, the card.
#pragma once

#include <QString>
#include <QWidget>

#include <map>
#include <span>

#include "platform/CommandTarget.h"
#include "platform/MenuModel.h"
#include "platform/Timers.h"

namespace quill {

class CScreen;

enum class WindowKind { Frame, Sheet, Dialog, Message, Card };
enum class WindowSize { FullScreen, Small };  // Small windows paint a caption of their own

// The controls of a window by id. Owned by the window.
using ControlMap = std::map<int, QWidget*>;

class CWindow : public QWidget, public TimerTarget {
  Q_OBJECT
 public:
  explicit CWindow(CScreen& screen);
  ~CWindow() override;

  CScreen& Screen() const { return m_screen; }
  virtual WindowKind Kind() const = 0;
  virtual WindowSize Size() const { return WindowSize::FullScreen; }
  QString Caption() const { return m_caption; }
  void SetCaption(const QString& caption);

  virtual ControlMap Controls() const { return m_controls; }
  // Null when the window has no such control.
  QWidget* Control(int id) const;
  void AddControl(int id, QWidget* control) { m_controls[id] = control; }

  // What the menu bar shows while this window is on top.
  virtual MenuBarModel MenuBar() const;
  virtual CommandRoute Route() const { return {}; }
  // What a tap-and-hold on the title bar offers for this window, before the shell's commands.
  virtual std::span<const resources::MenuEntry> TitleMenu() const { return {}; }
  CommandResult RunCommand(int id, CommandCheck check = CommandCheck::AsMenu);
  void OnTimer(int) override {}

  // What the title bar's buttons do: accept, and close or cancel.
  virtual bool HasOK() const { return false; }
  virtual void OnOK() {}
  virtual void OnCancel() {}
  // The popup of the menu key. False when the window has none.
  virtual bool ShowContextMenu() { return false; }
  // The input panel came or went; area is what is left of the screen.
  virtual void OnVisibleAreaChanged(QRect) {}

 protected:
  bool focusNextPrevChild(bool next) override;

 private:
  CScreen& m_screen;
  QString m_caption;
  ControlMap m_controls;
};

}  // namespace quill
