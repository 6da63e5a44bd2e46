// The notice that the program gets of what came through the store's back door.
#pragma once

#include "driver/Operations.h"

namespace quill::driver {

// Adds a step that posts the message with this first parameter to the main frame.
void Notify(OperationContext& context, int message, int first);
// As of another program's change, unless the arguments say "quiet".
void NotifyUnlessQuiet(const QJsonObject& arguments, OperationContext& context);

}  // namespace quill::driver
