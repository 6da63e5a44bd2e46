// The names of memo files: "Kim_20040915_093005.pwi" is a memo of the contact filed as Kim, made at
// that local time.
//
// The contact's name stands there as it is. A name that the device does not allow, such as "A/B",
// fails when the file is written. Memos made in the same second have the same name: intended.
#pragma once

#include "memo/MemoState.h"

namespace quill {

// Full paths for a memo that is made now, by the device's clock.
QString NewMemoPath(const MemoState& memo, const QString& fileAs);
QString NewUnnamedMemoPath(const MemoState& memo);

// The contact whose memo was proposed this path; nobody's has none.
QString MemoOwner(const MemoState& memo, const QString& path);

// The path that a copy is offered: "_Copy.pwi" in place of the last four characters.
QString MemoCopyPath(const QString& path);
// The same of a copy that takes no other memo's place: a copy of a copy where there is one already.
QString FreeMemoCopyPath(const QString& path);

}  // namespace quill
