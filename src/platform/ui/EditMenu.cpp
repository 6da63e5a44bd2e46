#include "platform/ui/EditMenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "platform/ui/Edit.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

namespace {

bool HasSelection(const QLineEdit& edit) { return edit.hasSelectedText(); }
bool HasSelection(const QPlainTextEdit& edit) { return edit.textCursor().hasSelection(); }
void Paste(QLineEdit& edit) { PasteLine(edit); }
void Paste(QPlainTextEdit& edit) { edit.paste(); }
bool IsEmpty(const QLineEdit& edit) { return edit.text().isEmpty(); }
bool IsEmpty(const QPlainTextEdit& edit) { return edit.document()->isEmpty(); }

template <class Editor>
std::vector<MenuItem> EditMenu(const Editor& edit) {
  const bool selected = HasSelection(edit);
  const bool pasteable = !edit.isReadOnly() && !QGuiApplication::clipboard()->text().isEmpty();
  return {{.Text = QStringLiteral("Cut"),
           .Id = EditMenuIds::kCut,
           .Enabled = selected && !edit.isReadOnly()},
          {.Text = QStringLiteral("Copy"), .Id = EditMenuIds::kCopy, .Enabled = selected},
          {.Text = QStringLiteral("Paste"), .Id = EditMenuIds::kPaste, .Enabled = pasteable},
          {.Separator = true},
          {.Text = QStringLiteral("Select all"),
           .Id = EditMenuIds::kSelectAll,
           .Enabled = !IsEmpty(edit)}};
}

template <class Editor>
void RunEditCommand(Editor& edit, int id) {
  if (id == EditMenuIds::kCut) edit.cut();
  if (id == EditMenuIds::kCopy) edit.copy();
  if (id == EditMenuIds::kPaste) Paste(edit);
  if (id == EditMenuIds::kSelectAll) edit.selectAll();
}

template <class Editor>
void ShowMenu(Editor& edit, QPoint at, const std::optional<AddedMenuItem>& added) {
  CScreen* const screen = ScreenAround(&edit);
  if (!screen) return;
  CommitInput();
  std::vector<MenuItem> items = EditMenu(edit);
  if (added) {
    items.push_back({.Separator = true});
    items.push_back({.Text = added->Text, .Id = EditMenuIds::kAdded});
  }
  const int chosen = screen->TrackMenu(edit.mapTo(screen, at), items);
  chosen == EditMenuIds::kAdded ? added->Run() : RunEditCommand(edit, chosen);
}

}  // namespace

void ShowEditMenu(QLineEdit& edit, QPoint at, const std::optional<AddedMenuItem>& added) {
  ShowMenu(edit, at, added);
}

void ShowEditMenu(QPlainTextEdit& edit, QPoint at, const std::optional<AddedMenuItem>& added) {
  ShowMenu(edit, at, added);
}

bool IsMenuKey(const QKeyEvent& event) {
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  return event.key() == Qt::Key_Menu || (shift && event.key() == Qt::Key_F10);
}

}  // namespace quill
