// A line editor of a whole number: only digits go in, six at most. It has the input panel up while
// it has the focus.
#pragma once

#include "platform/ui/PanelEdit.h"

namespace quill {

class CNumberEdit : public CPanelEdit {
  Q_OBJECT
 public:
  // name: what assistive technology calls it.
  CNumberEdit(const QString& name, QWidget* parent);

  // 0 when it is empty.
  int Number() const { return text().toInt(); }
};

}  // namespace quill
