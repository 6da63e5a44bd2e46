// Everything the command line can ask for but a window.
#pragma once

#include <QProcessEnvironment>

#include "app/Console.h"
#include "cli/CommandLine.h"

namespace quill {

// For every kind of line but Window. Returns the process' exit code, which is kExitFailed when the
// results could not be written.
int RunCommand(const CommandLine& line, const QProcessEnvironment& environment,
               const Console& console);

}  // namespace quill
