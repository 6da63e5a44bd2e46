// The memo files of some of the sample people.
#pragma once

#include "platform/DeviceFiles.h"

namespace quill {

// Puts them into the memo folder, all but those that are there already. False when one could not be
// written (the log says why).
bool PutSampleMemos(DeviceFiles& files);

}  // namespace quill
