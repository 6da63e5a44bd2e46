// quill import: the contacts of vCard files into the store.
#pragma once

#include "cli/Verb.h"

namespace quill {

// A file that cannot be read is told and the next one taken. The summary goes to Out, one line
// "FILE:LINE: card N: reason" for each card that could not be brought in to Err. kExitFailed when a
// file or the store failed, kExitPartly when a card did or a file held none.
int RunImport(const VerbCall& call, const Console& console);

}  // namespace quill
