// The sounds of a device that has none yet.
#pragma once

#include "platform/DeviceFiles.h"

namespace quill {

// Makes the folder "\Windows" with a few short sounds, which the program reckons itself: the same
// ones each time. A folder that is there already, also an empty one, stays as it is. What cannot
// be made is missing; the log says why.
void MakeSampleSounds(DeviceFiles& files);

}  // namespace quill
