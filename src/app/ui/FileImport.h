// Brings card files into the store on behalf of the window, and tells the user what came of it.
#pragma once

#include <QStringList>

#include "app/Places.h"

namespace quill {

class CScreen;

// Does what the import command does, after asking for the character set when a file needs one, and
// shows its report in a message box. Waits until the user has seen it; while it runs it shows its
// progress and can be cancelled, which keeps what came in until then.
void ImportFilesAndReport(CScreen& screen, const Places& places, const QStringList& files);

}  // namespace quill
