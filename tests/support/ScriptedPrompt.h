// A prompt that gives prepared answers in their order. A message without an answer, and an answer
// that nothing asked for, fail the test.
#pragma once

#include <deque>
#include <initializer_list>
#include <vector>

#include "platform/Prompt.h"

namespace quill::test {

class ScriptedPrompt : public Prompt {
 public:
  ScriptedPrompt() = default;
  explicit ScriptedPrompt(std::initializer_list<PromptAnswer> answers) : m_answers(answers) {}
  ~ScriptedPrompt() override;

  PromptAnswer Show(const PromptMessage& message) override;

  void Expect(PromptAnswer answer) { m_answers.push_back(answer); }
  const std::vector<PromptMessage>& Shown() const { return m_shown; }

 private:
  std::deque<PromptAnswer> m_answers;
  std::vector<PromptMessage> m_shown;
};

}  // namespace quill::test
