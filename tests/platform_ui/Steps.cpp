#include "platform_ui/Steps.h"

#include <gtest/gtest.h>

#include "platform/ui/Screen.h"

namespace quill::test {

namespace {

constexpr int kPatience = 50;

}  // namespace

Steps::Steps(CScreen& screen, std::vector<Step> steps)
    : m_screen(screen), m_steps(steps.begin(), steps.end()), m_turnsLeft(kPatience) {
  m_timer.setSingleShot(true);
  m_timer.callOnTimeout([this] { RunNext(); });
  m_timer.start(0);
}

Steps::~Steps() {
  if (!m_steps.empty()) ADD_FAILURE() << m_steps.size() << " steps were never taken";
}

// The next step is armed first: this one may open a loop that only the next one ends.
void Steps::RunNext() {
  m_timer.start(0);
  if (!m_steps.empty()) {
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    return step();
  }
  if (--m_turnsLeft > 0) return;
  m_timer.stop();
  ADD_FAILURE() << "a window still waits after the last step";
  m_screen.CloseAll();
}

}  // namespace quill::test
