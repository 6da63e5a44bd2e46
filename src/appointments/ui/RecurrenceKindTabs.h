// The strip of tabs on which the kind of a recurrence is chosen, by pen, by arrow keys, or by
// assistive technology.
#pragma once

#include <functional>

#include "appointments/RecurrenceKindStrip.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CRecurrenceKindTabs : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CRecurrenceKindTabs(QWidget* parent);

  RecurrenceKind Kind() const { return m_model.Kind; }
  // Says nothing to Chosen.
  void SetKind(RecurrenceKind kind);
  void ActivateRow(int row) override;

  // Called after each choice by the user, also of the kind that it was.
  std::function<void()> Chosen;

 protected:
  void PenPress(QPoint at) override;
  void PenRelease(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Choose(RecurrenceKind kind);
  void SetPressed(std::optional<RecurrenceKind> kind);
  void LayOut();

  KindStripModel m_model;
};

}  // namespace quill
