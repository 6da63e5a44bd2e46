// quill show: all that the store holds of a contact.
#pragma once

#include "cli/Verb.h"

namespace quill {

// The contacts filed under exactly this name, else those whose name begins with it, with every
// field as text or as a JSON array. None answers kExitPartly.
int RunShow(const VerbCall& call, const Console& console);

}  // namespace quill
