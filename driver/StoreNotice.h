// The notice that the program gets of what came through the store's back door.
#pragma once

#include "driver/Operations.h"

namespace quill::driver {

// Adds a step that posts the message with this first parameter to the main frame.
void Notify(OperationContext& context, int message, int first);
// Posts it at once, as of another program's change.
void NotifyOfOthersChange();
// The same as a step, unless the arguments say "quiet".
void NotifyUnlessQuiet(const QJsonObject& arguments, OperationContext& context);

}  // namespace quill::driver
