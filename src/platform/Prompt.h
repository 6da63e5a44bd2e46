// Message boxes, asked for without knowing of windows.
#pragma once

#include <QString>

#include "resources/Strings.h"

namespace quill {

enum class PromptIcon { None, Information, Warning, Question, Error };
enum class PromptButtons { OK, OKCancel, YesNo };
enum class PromptAnswer { OK, Cancel, Yes, No };

struct PromptMessage {
  QString Text;
  PromptIcon Icon = PromptIcon::None;
  PromptButtons Buttons = PromptButtons::OK;
  QString Caption = kApplicationTitle.toString();
};

class Prompt {
 public:
  virtual ~Prompt() = default;
  // Shows the message and waits. While the program closes the answer is Cancel (or No) at once.
  virtual PromptAnswer Show(const PromptMessage& message) = 0;
};

}  // namespace quill
