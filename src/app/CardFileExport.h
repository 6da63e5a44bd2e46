// Contacts of a home's store as a vCard file: the work of the verb and of the window.
#pragma once

#include "app/Console.h"
#include "app/Places.h"
#include "exchange/CardExport.h"

namespace quill {

struct ExportTask {
  Places Where;  // its folders exist
  QString File;  // "-" for standard output
  ExportOptions Options;
};

// The file appears whole or not at all, in place of an older one of its name; a pipe or a device is
// written as it comes. The number of contacts goes to Out, or to Err when the cards go to Out. No
// contact that was asked for, and a stop, answer kExitPartly and write nothing.
int ExportFile(const ExportTask& task, const Console& console);

}  // namespace quill
