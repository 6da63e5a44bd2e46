// The menu of an editor (cut, copy, paste, select all), which opens inside the frame, and the
// template that gives it to an editor of Qt's.
#pragma once

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <functional>
#include <optional>

class QLineEdit;
class QPlainTextEdit;

namespace quill {

// What an editor's menu offers below its own items.
struct AddedMenuItem {
  QString Text;
  std::function<void()> Run;
};

// Opens the menu, waits, and does what was chosen. at: in pixels of the editor. Nothing happens
// outside a screen.
void ShowEditMenu(QLineEdit& edit, QPoint at,
                  const std::optional<AddedMenuItem>& added = std::nullopt);
void ShowEditMenu(QPlainTextEdit& edit, QPoint at,
                  const std::optional<AddedMenuItem>& added = std::nullopt);

// The menu key, or what stands for it on keyboards without one.
bool IsMenuKey(const QKeyEvent& event);

template <class Editor>
class WithEditMenu : public Editor {
 public:
  using Editor::Editor;

  // Asked whenever the menu opens.
  std::function<std::optional<AddedMenuItem>()> ItemToAdd = [] { return std::nullopt; };

 protected:
  // Texts may be dropped here; files are the window's.
  void dragEnterEvent(QDragEnterEvent* event) override {
    event->mimeData()->hasUrls() ? event->ignore() : Editor::dragEnterEvent(event);
  }

  // The menu key comes as a key too: it is taken there.
  void contextMenuEvent(QContextMenuEvent* event) override {
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard)
      ShowEditMenu(*this, this->mapFromGlobal(event->globalPos()), ItemToAdd());
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (!IsMenuKey(*event)) return Editor::keyPressEvent(event);
    event->accept();
    ShowEditMenu(*this, this->rect().bottomLeft(), ItemToAdd());
  }
};

}  // namespace quill
