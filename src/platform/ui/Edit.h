// A line editor whose own menu (cut, copy, paste) opens inside the frame.
#pragma once

#include <QLineEdit>

namespace quill {

class CEdit : public QLineEdit {
  Q_OBJECT
 public:
  // parent is a window of a screen or stands in one.
  CEdit(const QString& text, QWidget* parent);

 protected:
  // Texts may be dropped here; files are the window's.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowMenu(QPoint at);
};

}  // namespace quill
