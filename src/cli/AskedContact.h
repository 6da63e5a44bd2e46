// Which contact a request of the command line means.
#pragma once

#include "app/Console.h"
#include "app/Places.h"
#include "app/Request.h"

namespace quill {

// A request to show somebody names a contact as the verb show does: by the whole name, or by its
// beginning. The window knows whole names only, so this is the same request with the whole name of
// the first contact meant; of several the console is told which. Where nobody is meant or the store
// does not open, and of any other kind, it is the request as it came.
Request WithWholeName(const Request& request, const Places& places, const Console& console);

}  // namespace quill
