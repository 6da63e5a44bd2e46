// What an import tells of a file, and how it ends the process.
#pragma once

#include "app/Console.h"
#include "exchange/CardImport.h"

namespace quill {

// One line "FILE:LINE: card N (NAME): reason" to Err for each unreadable card, then the counts to
// Out. Returns the exit code as if this were the only file: kExitFailed when the file or the store
// failed, kExitPartly when a card did, there was none or somebody stopped it.
int ReportImport(const QString& name, const ImportSummary& summary, const Console& console);

// The counts alone: "NAME: 2 new, 0 changed, 1 the same, 0 unreadable".
QString CountsLine(const QString& name, const ImportSummary& summary);

}  // namespace quill
