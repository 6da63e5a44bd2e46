// The software input panel as windows see it: whether it is up and what area it leaves.
#pragma once

#include <QRect>

#include <functional>

namespace quill {

class InputPanel {
 public:
  virtual ~InputPanel() = default;
  virtual bool IsUp() const = 0;
  // The part of the screen between title bar and menu bar that the panel leaves, in logical pixels.
  virtual QRect VisibleArea() const = 0;
  virtual void Raise() = 0;
  virtual void Lower() = 0;
  // Called after each change of IsUp. One listener: the screen, which hands it to its windows.
  std::function<void()> Changed;
};

}  // namespace quill
