// The software input panel's keys, above the menu bar. They type into the widget with the focus and
// never take it; a key acts on release, and not when the pen slid off it.
#pragma once

#include <QPointer>

#include "platform/KeyPanelState.h"
#include "platform/Timers.h"
#include "platform/ui/KeyTyper.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

inline constexpr QRect kKeyPanelArea{{0, kTitleBarHeight + kClientHeight - kInputPanelHeight},
                                     kKeyPanelSize};

class CKeyPanel : public CPaintedWindow, public TimerTarget {
  Q_OBJECT
 public:
  // screen: the pen screen, whose child it becomes. Hidden at first.
  CKeyPanel(QWidget& screen, PreeditWatch& preedit);
  ~CKeyPanel() override;

  void ActivateRow(int row) override;
  void OnTimer(int id) override;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void BeginWith(QWidget* editor);
  void ShowState(const KeyPanelState& state);
  void ShowPressed(int key);
  void LetGo();
  void Act(int key);

  KeyPanelState m_state;
  KeyTyper m_typer;
  QPointer<QWidget> m_editor;    // that the keys were chosen for
  Qt::InputMethodHints m_hints;  // as it had them then
  int m_pressed = -1;            // the key that the pen holds
  bool m_repeated = false;       // and that acted already
};

}  // namespace quill
