// quill list: the contacts' names in the order of the list.
#pragma once

#include "cli/Verb.h"

namespace quill {

// One name on a line, or a JSON array of the contacts with what a row of the list holds. An empty
// store answers kExitPartly, and says so.
int RunList(const VerbCall& call, const Console& console);

}  // namespace quill
