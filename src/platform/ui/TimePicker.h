// A time of the day in a cell of 17 pixels: typed as "09:30 AM", section by section, where A and P
// alone choose the half of the day, or chosen from a list of every half hour inside the frame.
// Seconds of a time that was set stay until another one is chosen.
#pragma once

#include <functional>

#include "platform/ui/SectionEdit.h"

class QToolButton;

namespace quill {

class CTimePicker : public CSectionEdit {
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
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool ChooseHalfOfDay(const QKeyEvent& event);
  void TellChanged();

  QToolButton* m_button;
  QTime m_told;  // what Changed was told last
};

}  // namespace quill
