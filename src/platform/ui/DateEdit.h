// A day that is typed: "MM/dd/yyyy", section by section or as digits alone; the arrow keys step the
// section and go from one to the next. What is no day of the calendar cannot be typed. Its menu
// opens inside the frame.
#pragma once

#include <QDateEdit>

namespace quill {

class CDateEdit : public QDateEdit {
  Q_OBJECT
 public:
  explicit CDateEdit(QWidget* parent);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowMenu(QPoint at);
  bool GoToSection(const QKeyEvent& event);
  bool IsNeedlessSlash(const QKeyEvent& event) const;
};

}  // namespace quill
