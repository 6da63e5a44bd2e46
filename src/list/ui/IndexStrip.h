// The strip of five letter buttons above the list.
#pragma once

#include <functional>

#include "platform/ui/PaintedWindow.h"

namespace quill {

class CIndexStrip : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CIndexStrip(QWidget* view);

  // Lays the strip out again after the chosen button changed.
  void ShowChosen();
  // Called with the number of the button that was tapped, 1 to 5.
  std::function<void(int button)> Tapped;

  void ActivateRow(int row) override;

 protected:
  void PenPress(QPoint at) override;
};

}  // namespace quill
