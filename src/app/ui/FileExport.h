// Writes contacts to a card file on behalf of the window, and tells the user what came of it.
#pragma once

#include "app/Places.h"

namespace quill {

class CScreen;

struct ExportChoice {
  QString File;
  QString Restriction = {};  // as for ExportOptions; empty: all contacts
};

// Does what the export command does and shows its report in a message box. Waits until the user has
// seen it; while it runs it shows its progress and can be cancelled. Unless all is written, an
// older file of this name stays as it was.
void ExportFileAndReport(CScreen& screen, const Places& places, const ExportChoice& choice);

}  // namespace quill
