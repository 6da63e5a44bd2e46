// The commands on memo files, for the list by memo. Each acts on the memo under the current row and
// lists the folder anew.
#pragma once

#include <QStringList>

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

// Rename, copy and delete, of a memo row's popup.
std::unique_ptr<CommandTarget> MakeMemoCommands(CContactsView& view);

// As many memos as rows are selected, one after the other from the current row on, whichever rows
// are selected: intended.
void DeleteSelectedMemos(CContactsView& view);
void DeleteListedMemos(CContactsView& view);

// Begins a memo of no contact. The list is built anew only for a memo that was written.
void MakeNewMemo(CContactsView& view);
void OpenMemo(CContactsView& view);
// One after the other, by their device paths.
void OpenMemoFiles(CContactsView& view, const QStringList& paths);

}  // namespace quill
