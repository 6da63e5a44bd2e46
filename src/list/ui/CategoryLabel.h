// The label at the right of the title band: the chosen category.
#pragma once

#include <functional>

#include "platform/ui/PaintedWindow.h"

namespace quill {

class CCategoryLabel : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CCategoryLabel(QWidget* view);

  // Lays the label out again after the choice changed.
  void ShowChosen();
  // Called for a tap on the label. Unset, a tap does nothing.
  std::function<void()> Tapped;

  void ActivateRow(int row) override;

 protected:
  void PenPress(QPoint at) override;
};

}  // namespace quill
