// A line editor whose own menu (cut, copy, paste) opens inside the frame. Of what is pasted,
// dropped, typed or committed by an input method each line break becomes a blank; a text that the
// program puts there keeps its breaks.
#pragma once

#include <QLineEdit>

#include "platform/ui/EditMenu.h"

namespace quill {

class CEdit : public WithEditMenu<QLineEdit> {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  CEdit(const QString& text, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

// What its key for pasting does, for menus.
void PasteLine(QLineEdit& edit);

}  // namespace quill
