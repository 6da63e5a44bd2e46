// Memo files that the user hands over from anywhere on the desktop.
#pragma once

#include <QString>

#include "memo/MemoState.h"
#include "platform/DeviceRoots.h"

namespace quill {

// By its name.
bool IsMemoFile(const QString& file);

// The device path under which it is edited: a file of the device where it lies; of any other a copy
// in the memo folder, under its own name and never in the place of another memo. A copy that is
// there already, with the same content, is taken again. Empty when the file cannot be read or
// copied.
QString TakeMemoFile(const QString& file, const DeviceRoots& roots, const MemoState& memo);

}  // namespace quill
