// A message box: a text, an icon and the buttons that a prompt asks for. DoModal returns the id of
// the button.
#pragma once

#include "platform/Prompt.h"
#include "platform/ui/Dialog.h"

namespace quill {

class CMessageBox : public CDialog {
  Q_OBJECT
 public:
  CMessageBox(CScreen& screen, const PromptMessage& message);

  WindowKind Kind() const override { return WindowKind::Message; }
  void OnOK() override;
  void OnCancel() override;

 private:
  void AddText(const PromptMessage& message, int textHeight);
  void AddButtons(int top);

  const PromptButtons m_buttons;
};

}  // namespace quill
