// A line editor whose own menu (cut, copy, paste) opens inside the frame.
#pragma once

#include <QLineEdit>

#include "platform/ui/EditMenu.h"

namespace quill {

class CEdit : public WithEditMenu<QLineEdit> {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  CEdit(const QString& text, QWidget* parent);
};

}  // namespace quill
