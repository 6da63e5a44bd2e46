// Carries out what the keys of the key panel ask for, in the widget with the focus: text reaches an
// editor as from an input method, other widgets and other keys get key events.
#pragma once

#include "platform/HangulComposer.h"
#include "platform/KeyPanelLayout.h"

class QWidget;

namespace quill {

class PreeditWatch;

class KeyTyper {
 public:
  // elsewhere: takes the keys while nothing has the focus. Both outlive the typer.
  KeyTyper(PreeditWatch& preedit, QWidget& elsewhere)
      : m_preedit(preedit), m_elsewhere(elsewhere) {}

  void Carry(const KeyIntention& intention);

 private:
  QWidget& Target() const;
  void Type(const QString& text);
  void Compose(const QString& jamo);
  void TakeBack();
  void MeetPreedit();
  static void Send(const HangulStep& step);
  void Press(int key, const QString& text = {}) const;

  PreeditWatch& m_preedit;
  QWidget& m_elsewhere;
  HangulComposer m_composer;
};

// Whether a widget takes text as input methods give it.
bool TakesInputMethod(const QWidget& widget);

}  // namespace quill
