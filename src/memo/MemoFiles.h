// Changing memo files. What cannot be done goes to the log, and a new listing shows what is really
// there. Paths are full device paths, taken as they are.
#pragma once

#include "memo/MemoState.h"

namespace quill {

// Takes the place of a file that is there. The memo folder is made again where somebody has removed
// it. False when the memo could not be written as a whole; then nothing has changed.
bool WriteMemo(const MemoState& memo, const QString& path, const QByteArray& content);

// What others have done with a memo since this was read from it.
enum class MemoFate { AsRead, Changed, Removed };
MemoFate FateOfMemo(const QString& path, const QByteArray& read);

// An empty name deletes nothing.
void DeleteMemo(const MemoState& memo, const QString& name);
// So many memos of NameList from a position (0-based) on; those past its end are not missed.
void DeleteMemos(const MemoState& memo, qsizetype first, qsizetype count);

// A memo that is moved may leave the folder or lose its extension, and then no list shows it. It
// never takes the place of another file.
void MoveMemo(const QString& from, const QString& to);
// Takes the place of a file that is there.
void CopyMemo(const QString& from, const QString& to);

}  // namespace quill
