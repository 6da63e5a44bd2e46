// quill export: contacts of the store as a vCard file (ExportFile).
#pragma once

#include "cli/Verb.h"

namespace quill {

int RunExport(const VerbCall& call, const Console& console);

}  // namespace quill
