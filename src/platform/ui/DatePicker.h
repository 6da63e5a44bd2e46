// A day in a cell of 17 pixels: typed, or chosen from a calendar inside the frame. With a check box
// there may be no day at all.
//
// Editor, check box, button and calendar are one control: the focus has left it only when another
// control of its window has it. Who checks the box, or types a digit on it, goes on in the editor.
#pragma once

#include <QDate>
#include <QWidget>

#include <functional>
#include <optional>

class QCheckBox;
class QKeyEvent;
class QToolButton;

namespace quill {

class CDateEdit;

enum class NoneCheck { Shown, Absent };

class CDatePicker : public QWidget {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  CDatePicker(NoneCheck none, QWidget* parent);
  ~CDatePicker() override;

  // Says nothing to Changed. shownWhenNone is what the check begins with; without a check box it is
  // the day. Beyond the calendar's ends the nearest day within is taken.
  void SetDate(std::optional<QDate> date, QDate shownWhenNone);
  // Nothing while the check box is not checked.
  std::optional<QDate> Date() const;
  // The day that is shown, also while there is none.
  QDate ShownDate() const;
  bool HasNoneCheck() const { return m_none == NoneCheck::Shown; }

  // Up and down are the parent's then, as in a list of rows, and step nothing.
  void HandOnUpAndDown();

  // The user's own acts: choose a day, or turn the check.
  void ChooseDate(QDate date);
  void SetChecked(bool checked);
  // Opens the calendar, which begins at the shown day, and waits.
  void OpenCalendar();

  // Called after each change by the user.
  std::function<void()> Changed;
  // Called when another control of the same window got the focus.
  std::function<void()> Left;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FollowCheck();
  void GoToEditor();
  bool BeginTyping(QKeyEvent& event);
  void TellChanged();
  void FocusMoved(const QWidget* before, const QWidget* now);
  bool Holds(const QWidget* widget) const;

  const NoneCheck m_none;
  QCheckBox* m_check;
  CDateEdit* m_edit;
  QToolButton* m_button;
  std::optional<QDate> m_told;  // what Changed was told last
};

}  // namespace quill
