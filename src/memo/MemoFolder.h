// The one folder in which all memos lie.
#pragma once

#include "memo/MemoState.h"

namespace quill {

// At the start: makes the folder. Where that fails other than by its being there already, memos lie
// in "\My Documents\" for the rest of the run. Nothing is reported but on the log.
void FixMemoFolder(MemoState& memo);

// The full path of a name in it. After a fall-back it holds a doubled separator: intended.
QString MemoPath(const MemoState& memo, const QString& name);

}  // namespace quill
