// What an operation still has to do when its handler has returned: one step after the other, each
// in whatever event loop is innermost by then. A step may open a nested loop; the next one runs in
// it.
#pragma once

#include <functional>

#include "driver/Request.h"

namespace quill::driver {

class Steps {
 public:
  virtual ~Steps() = default;
  // delay: milliseconds to wait before the step.
  virtual void Add(std::function<void()> step, int delay = 0) = 0;
  // Replaces the answer that the handler gave; a step that learns it later calls this.
  virtual void SetAnswer(const Answer& answer) = 0;
  // Ends the program once the answer is out.
  virtual void CloseProgram() = 0;
};

}  // namespace quill::driver
