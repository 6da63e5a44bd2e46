// The desktop's message bus.
#pragma once

namespace quill {

// Asked before a connection is tried: the bus library would start a bus of its own where there is
// none.
bool SessionBusExists();

}  // namespace quill
