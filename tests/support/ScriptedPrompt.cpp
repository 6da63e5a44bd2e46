#include "support/ScriptedPrompt.h"

#include <gtest/gtest.h>

namespace quill::test {

ScriptedPrompt::~ScriptedPrompt() {
  if (!m_answers.empty()) ADD_FAILURE() << m_answers.size() << " answers were never asked for";
}

PromptAnswer ScriptedPrompt::Show(const PromptMessage& message) {
  m_shown.push_back(message);
  if (m_answers.empty()) {
    ADD_FAILURE() << "no answer is left for: " << message.Text.toStdString();
    return PromptAnswer::Cancel;
  }
  const PromptAnswer answer = m_answers.front();
  m_answers.pop_front();
  return answer;
}

}  // namespace quill::test
