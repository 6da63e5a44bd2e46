// Listing memos. The folder is the only record of them: each call looks at it anew.
//
// Answers are file names without folder, sorted without case; a folder that cannot be read is an
// empty one. Names are compared unit by unit, each in lower case; so a name that begins with "_"
// stands before "a", not behind "Z".
#pragma once

#include <QStringView>

#include <optional>

#include "memo/MemoState.h"

namespace quill {

QStringList AllMemos(const MemoState& memo);

// The names from lower up to but not including upper. Where lower does not sort before upper, by
// case, the range wraps round: the names from lower on and those before upper.
QStringList MemosInRange(const MemoState& memo, QStringView lower, QStringView upper);

// The names that begin with this text; "*" and "?" in it stand for other characters, as in any
// pattern. No name has a separator in it, so a text with one matches none. The memos of a contact
// are those that begin with its name, so Kim has Kimberly's too: intended.
QStringList MemosWithPrefix(const MemoState& memo, const QString& prefix);

// The name at a position of NameList, 0-based; nothing past its end.
std::optional<QString> MemoAt(const MemoState& memo, qsizetype position);

}  // namespace quill
