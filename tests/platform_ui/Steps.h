// What a test does while a window waits in a loop of its own: the steps run one after another in
// whatever loop is innermost, each from a timer of its own.
//
// Make the steps first, then open the window; when the window ended, every step must have run. A
// window that still waits after the last step is ended, and the test fails.
#pragma once

#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

namespace quill {
class CScreen;
}

namespace quill::test {

using Step = std::function<void()>;

class Steps {
 public:
  // The screen outlives the steps.
  Steps(CScreen& screen, std::vector<Step> steps);
  ~Steps();
  Q_DISABLE_COPY_MOVE(Steps)

 private:
  void RunNext();

  CScreen& m_screen;
  std::deque<Step> m_steps;
  QTimer m_timer;
  int m_turnsLeft;  // of the loop, before a window that still waits is ended
};

}  // namespace quill::test
