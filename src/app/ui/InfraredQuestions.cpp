#include "app/ui/InfraredQuestions.h"

#include <utility>

#include "app/ui/ConsentDlg.h"
#include "app/ui/ReceiverDlg.h"

namespace quill {

void ReceiverPicker::Choose(const ReceiverQuestion& question) {
  m_turn.Await([this, question] { Ask(question); });
}

void ReceiverPicker::Ask(const ReceiverQuestion& question) {
  CReceiverDlg dialog(m_screen, question.Last);
  question.Find([&dialog](const ObexReceiver& receiver) { dialog.AddFound(receiver); });
  const bool isChosen = dialog.DoModal() == kResultOK;
  question.Answer(isChosen ? dialog.Receiver() : std::nullopt);
}

void ConsentQuestion::Ask(const ObexOffer& offer,
                          const std::function<void(ConsentAnswer answer)>& answer) {
  m_answer = answer;
  m_turn.Await([this, offer] { Give(Show(offer)); });
}

ConsentAnswer ConsentQuestion::Show(const ObexOffer& offer) {
  CConsentDlg dialog(m_screen, offer);
  m_dialog = &dialog;
  const int result = dialog.DoModal();
  m_dialog = nullptr;
  if (result != kResultYes) return ConsentAnswer::Refused;
  return dialog.IsAlwaysChecked() ? ConsentAnswer::AlwaysWanted : ConsentAnswer::Wanted;
}

void ConsentQuestion::TakeBack() {
  if (m_dialog) return m_dialog->EndDialog(kResultNo);
  m_turn.Cancel();
  Give(ConsentAnswer::Refused);
}

void ConsentQuestion::Give(ConsentAnswer answer) {
  if (const auto give = std::exchange(m_answer, nullptr)) give(answer);
}

}  // namespace quill
