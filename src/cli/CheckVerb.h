// quill check: whether the store is sound; mends its index.
#pragma once

#include "cli/Verb.h"

namespace quill {

// Says what was found, as text or as a JSON object. A store that is right, or is right now, answers
// kExitDone; one that is damaged or cannot be opened kExitFailed, with the reason, and stays as it
// is.
int RunCheck(const VerbCall& call, const Console& console);

}  // namespace quill
