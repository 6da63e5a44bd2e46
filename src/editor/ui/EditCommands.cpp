#include "editor/ui/EditCommands.h"

#include "platform/ui/InputCommit.h"
#include "resources/Ids.h"

namespace quill {

namespace {

using FieldAction = std::function<void()> EditField::*;

CommandRow Row(int id, const EditCommandFields& fields, FieldAction action) {
  return {id, id, [active = fields.Active, action](int) {
            CommitInput();
            (active().*action)();
          }};
}

CommandRow RowOnSelection(int id, const EditCommandFields& fields, FieldAction action) {
  CommandRow row = Row(id, fields, action);
  if (fields.Undoable)
    row.Update = [active = fields.Active](int, CommandState& state) {
      state.Enabled = active().HasSelection;
    };
  return row;
}

CommandRow UndoRow(const EditCommandFields& fields) {
  CommandRow row = Row(ID_EDIT_UNDO, fields, &EditField::Undo);
  if (fields.Undoable)
    row.Update = [undoable = fields.Undoable](int, CommandState& state) {
      state.Enabled = undoable().CanUndo;
    };
  return row;
}

}  // namespace

std::unique_ptr<CommandTarget> MakeEditCommands(const EditCommandFields& fields) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      UndoRow(fields),
      RowOnSelection(ID_EDIT_CUT, fields, &EditField::Cut),
      RowOnSelection(ID_EDIT_COPY, fields, &EditField::Copy),
      Row(ID_EDIT_PASTE, fields, &EditField::Paste),
      RowOnSelection(ID_EDIT_CLEAR, fields, &EditField::Clear),
  });
}

}  // namespace quill
