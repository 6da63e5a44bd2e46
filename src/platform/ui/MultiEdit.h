// An editor of plain text with several lines, whose own menu opens inside the frame. Return begins
// a new line, Tab leaves it, and so do Up in its first line and Down in its last one, where the
// parent has a use for them. Of what is pasted only the text is taken.
#pragma once

#include <QPlainTextEdit>

#include "platform/ui/EditMenu.h"

namespace quill {

class CMultiEdit : public WithEditMenu<QPlainTextEdit> {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  CMultiEdit(const QString& text, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace quill
