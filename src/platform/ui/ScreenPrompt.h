// The prompt as message boxes on the pen screen.
#pragma once

#include "platform/Prompt.h"

namespace quill {

class CScreen;

class ScreenPrompt : public Prompt {
 public:
  explicit ScreenPrompt(CScreen& screen) : m_screen(screen) {}
  PromptAnswer Show(const PromptMessage& message) override;

 private:
  CScreen& m_screen;
};

}  // namespace quill
