#include "memo/MemoDeletion.h"

#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

bool ConfirmDeletion(const QString& question) {
  return g_services.Prompt->Show(
             {.Text = question, .Icon = PromptIcon::Question, .Buttons = PromptButtons::YesNo}) ==
         PromptAnswer::Yes;
}

bool ConfirmMemoDeletion() {
  return ConfirmDeletion(QStringLiteral("This memo will be deleted. Continue?"));
}

}  // namespace quill
