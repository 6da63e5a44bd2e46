// A day that is typed: "MM/dd/yyyy", section by section or as digits alone. What is no day of the
// calendar cannot be typed.
#pragma once

#include "platform/ui/SectionEdit.h"

namespace quill {

class CDateEdit : public CSectionEdit {
  Q_OBJECT
 public:
  explicit CDateEdit(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool IsNeedlessSlash(const QKeyEvent& event) const;
};

}  // namespace quill
