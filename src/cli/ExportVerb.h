// quill export: contacts of the store as a vCard file.
#pragma once

#include "cli/Verb.h"

namespace quill {

// The file appears whole or not at all, in place of an older one of its name; a pipe or a device is
// written as it comes. The number of contacts goes to Out, or to Err when the cards go to Out. No
// contact that was asked for answers kExitPartly and writes nothing.
int RunExport(const VerbCall& call, const Console& console);

}  // namespace quill
