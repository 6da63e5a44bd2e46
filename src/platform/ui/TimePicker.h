// A time of the day in a cell of 17 pixels: typed as "09:30 AM", section by section, stepped by the
// arrow keys, or chosen from a list of every half hour inside the frame. Seconds of a time that was
// set stay until another one is chosen.
#pragma once

#include <QTimeEdit>

class QToolButton;

namespace quill {

class CTimePicker : public QTimeEdit {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  explicit CTimePicker(QWidget* parent);

  // Opens the list and waits.
  void OpenList();

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QToolButton* m_button;
};

}  // namespace quill
