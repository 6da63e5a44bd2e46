#include "platform/ui/ScreenPrompt.h"

#include "platform/ui/MessageBox.h"
#include "platform/ui/Screen.h"

namespace quill {

PromptAnswer ScreenPrompt::Show(const PromptMessage& message) {
  CMessageBox box(m_screen, message);
  switch (box.DoModal()) {
    case kResultOK:
      return PromptAnswer::OK;
    case kResultYes:
      return PromptAnswer::Yes;
    case kResultNo:
      return PromptAnswer::No;
    default:
      return message.Buttons == PromptButtons::YesNo ? PromptAnswer::No : PromptAnswer::Cancel;
  }
}

}  // namespace quill
