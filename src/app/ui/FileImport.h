// Brings card files into the store on behalf of the window, and tells the user what came of it.
#pragma once

#include <QStringList>

#include "app/Places.h"

namespace quill {

// Does what the import command does, shows its report in a message box and waits. The window is
// told of the new contacts by its watch on the store.
void ImportFilesAndReport(const Places& places, const QStringList& files);

}  // namespace quill
