// A list of check boxes. A tap on a row, and the space bar on the current one, turns its check
// over; the arrow keys move the current row. What does not fit scrolls.
#pragma once

#include <functional>

#include "platform/CheckListLayout.h"
#include "platform/ui/PaintedWindow.h"

class QScrollBar;

namespace quill {

class CCheckList : public CPaintedWindow {
  Q_OBJECT
 public:
  // name: what assistive technology calls the list.
  CCheckList(const QString& name, QWidget* parent);

  const std::vector<CheckListItem>& Items() const { return m_model.Items; }
  // Takes the place of all items; none is current then. Says nothing to CurrentChanged.
  void SetItems(std::vector<CheckListItem> items);
  // Scrolls to it. -1 for none. A row and its item have the same index.
  void SetCurrent(int index);
  // Makes the row current and turns its check over.
  void ActivateRow(int row) override;

  // Called when another row is current than before.
  std::function<void()> CurrentChanged;

 protected:
  void PenPress(QPoint at) override;
  void PenRelease(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut();
  void ScrollTo(int top);
  void TellChecked(int row);

  CheckListModel m_model;
  QScrollBar* m_bar;
  int m_pressed = -1;   // the row under the pen when it came down
  QRect m_pressedArea;  // and where it was then
};

}  // namespace quill
