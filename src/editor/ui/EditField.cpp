#include "editor/ui/EditField.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "platform/ui/Edit.h"

namespace quill {

EditField FieldOf(QLineEdit& edit) {
  return {.CanUndo = edit.isUndoAvailable(),
          .HasSelection = edit.hasSelectedText(),
          .Undo = [&edit] { edit.undo(); },
          .Cut = [&edit] { edit.cut(); },
          .Copy = [&edit] { edit.copy(); },
          .Paste = [&edit] { PasteLine(edit); },
          .Clear =
              [&edit] {
                if (edit.hasSelectedText()) edit.del();
              }};
}

EditField FieldOf(QPlainTextEdit& edit) {
  return {.CanUndo = edit.document()->isUndoAvailable(),
          .HasSelection = edit.textCursor().hasSelection(),
          .Undo = [&edit] { edit.undo(); },
          .Cut = [&edit] { edit.cut(); },
          .Copy = [&edit] { edit.copy(); },
          .Paste = [&edit] { edit.paste(); },
          .Clear = [&edit] { edit.textCursor().removeSelectedText(); }};
}

bool BeginsText(const QKeyEvent& key) {
  constexpr Qt::KeyboardModifiers kOfLetters =
      Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
  if (key.text().isEmpty() || (key.modifiers() & ~kOfLetters)) return false;
  const QChar first = key.text().front();
  return first.isSurrogate() || (first.isPrint() && !first.isSpace());
}

void HandToField(QKeyEvent& key, const QWidget& from) {
  QWidget* const field = QApplication::focusWidget();
  if (field && field != &from) QCoreApplication::sendEvent(field, &key);
}

}  // namespace quill
