// The menu of an editor (cut, copy, paste, select all), which opens inside the frame, and the
// template that gives it to an editor of Qt's.
#pragma once

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>

class QLineEdit;
class QPlainTextEdit;

namespace quill {

// Opens the menu, waits, and does what was chosen. at: in pixels of the editor. Nothing happens
// outside a screen.
void ShowEditMenu(QLineEdit& edit, QPoint at);
void ShowEditMenu(QPlainTextEdit& edit, QPoint at);

// The menu key, or what stands for it on keyboards without one.
bool IsMenuKey(const QKeyEvent& event);

template <class Editor>
class WithEditMenu : public Editor {
 public:
  using Editor::Editor;

 protected:
  // Texts may be dropped here; files are the window's.
  void dragEnterEvent(QDragEnterEvent* event) override {
    event->mimeData()->hasUrls() ? event->ignore() : Editor::dragEnterEvent(event);
  }

  // The menu key comes as a key too: it is taken there.
  void contextMenuEvent(QContextMenuEvent* event) override {
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard)
      ShowEditMenu(*this, this->mapFromGlobal(event->globalPos()));
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (!IsMenuKey(*event)) return Editor::keyPressEvent(event);
    event->accept();
    ShowEditMenu(*this, this->rect().bottomLeft());
  }
};

}  // namespace quill
