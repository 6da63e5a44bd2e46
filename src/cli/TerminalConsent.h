// Asks on the terminal whether a card that is pushed is wanted.
#pragma once

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>

#include "app/Console.h"
#include "infrared/ObexReception.h"

namespace quill {

class TerminalConsent : public ReceiveConsent {
 public:
  // Reads the answers, one line each, from this file descriptor. Its end refuses all that follow.
  TerminalConsent(const Console& console, int input);

  void Ask(const ObexOffer& offer,
           const std::function<void(ConsentAnswer answer)>& answer) override;
  void TakeBack() override;

 private:
  void Read();
  void TakeLine();
  void Give(ConsentAnswer answer);

  const Console& m_console;
  int m_input;
  QSocketNotifier m_notifier;
  QByteArray m_typed;  // and not taken yet
  std::function<void(ConsentAnswer answer)> m_answer;
};

}  // namespace quill
