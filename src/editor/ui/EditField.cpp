#include "editor/ui/EditField.h"

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

}  // namespace quill
