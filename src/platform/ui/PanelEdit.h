// A line editor that raises the input panel when it gains the focus and lowers it when it loses it.
// A popup, its own menu for one, takes the focus for a moment only: the panel stays.
#pragma once

#include "platform/ui/Edit.h"

namespace quill {

class CPanelEdit : public CEdit {
  Q_OBJECT
 public:
  using CEdit::CEdit;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace quill
