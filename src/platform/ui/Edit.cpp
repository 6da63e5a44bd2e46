#include "platform/ui/Edit.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>

#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

namespace {

std::vector<MenuItem> EditMenu(const QLineEdit& edit) {
  const bool selected = edit.hasSelectedText();
  const bool pasteable = !edit.isReadOnly() && !QGuiApplication::clipboard()->text().isEmpty();
  return {{.Text = QStringLiteral("Cut"),
           .Id = EditMenuIds::kCut,
           .Enabled = selected && !edit.isReadOnly()},
          {.Text = QStringLiteral("Copy"), .Id = EditMenuIds::kCopy, .Enabled = selected},
          {.Text = QStringLiteral("Paste"), .Id = EditMenuIds::kPaste, .Enabled = pasteable},
          {.Separator = true},
          {.Text = QStringLiteral("Select all"),
           .Id = EditMenuIds::kSelectAll,
           .Enabled = !edit.text().isEmpty()}};
}

void RunEditCommand(QLineEdit& edit, int id) {
  if (id == EditMenuIds::kCut) edit.cut();
  if (id == EditMenuIds::kCopy) edit.copy();
  if (id == EditMenuIds::kPaste) edit.paste();
  if (id == EditMenuIds::kSelectAll) edit.selectAll();
}

}  // namespace

CEdit::CEdit(const QString& text, QWidget* parent) : QLineEdit(text, parent) {}

void CEdit::ShowMenu(QPoint at) {
  CScreen* const screen = ScreenAround(this);
  if (!screen) return;
  CommitInput();
  RunEditCommand(*this, screen->TrackMenu(mapTo(screen, at), EditMenu(*this)));
}

void CEdit::dragEnterEvent(QDragEnterEvent* event) {
  event->mimeData()->hasUrls() ? event->ignore() : QLineEdit::dragEnterEvent(event);
}

// The menu key comes as a key too: it is taken there.
void CEdit::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard) ShowMenu(event->pos());
}

void CEdit::keyPressEvent(QKeyEvent* event) {
  const bool shiftF10 =
      event->key() == Qt::Key_F10 && event->modifiers().testFlag(Qt::ShiftModifier);
  if (event->key() != Qt::Key_Menu && !shiftF10) return QLineEdit::keyPressEvent(event);
  event->accept();
  ShowMenu(rect().bottomLeft());
}

}  // namespace quill
