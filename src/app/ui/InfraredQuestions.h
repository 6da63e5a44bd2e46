// What the infrared folder has to ask the user, in windows that open when nothing else is open: to
// whom contacts go, and whether pushed cards are wanted.
#pragma once

#include "app/ui/IdleTurn.h"
#include "infrared/ObexInfrared.h"

namespace quill {

class CConsentDlg;

class ReceiverPicker : public ReceiverChooser {
 public:
  // Both outlive this.
  ReceiverPicker(CScreen& screen, Timers& timers) : m_screen(screen), m_turn(screen, timers) {}

  void Choose(const ReceiverQuestion& question) override;

 private:
  void Ask(const ReceiverQuestion& question);

  CScreen& m_screen;
  IdleTurn m_turn;
};

class ConsentQuestion : public ReceiveConsent {
 public:
  // Both outlive this.
  ConsentQuestion(CScreen& screen, Timers& timers) : m_screen(screen), m_turn(screen, timers) {}

  void Ask(const ObexOffer& offer,
           const std::function<void(ConsentAnswer answer)>& answer) override;
  void TakeBack() override;

 private:
  ConsentAnswer Show(const ObexOffer& offer);
  void Give(ConsentAnswer answer);

  CScreen& m_screen;
  IdleTurn m_turn;
  std::function<void(ConsentAnswer answer)> m_answer;  // while a question waits or is shown
  CConsentDlg* m_dialog = nullptr;                     // while it is shown
};

}  // namespace quill
