// A time of the day in a cell of 17 pixels: typed as "09:30 AM", section by section, stepped by the
// arrow keys, or chosen from a list of every half hour inside the frame. Seconds of a time that was
// set stay until another one is chosen.
#pragma once

#include <QTimeEdit>

#include <functional>

class QToolButton;

namespace quill {

class CTimePicker : public QTimeEdit {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  explicit CTimePicker(QWidget* parent);

  // Says nothing to Changed.
  void SetTime(QTime time);
  // Opens the list and waits.
  void OpenList();

  // Called after each change by the user.
  std::function<void()> Changed;

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void TellChanged();

  QToolButton* m_button;
  QTime m_told;  // what Changed was told last
};

}  // namespace quill
