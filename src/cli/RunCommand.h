// Everything the command line can ask for but a window.
#pragma once

#include <QProcessEnvironment>

#include "app/Console.h"
#include "cli/CommandLine.h"

namespace quill {

// For every kind of line but Window. Returns the process' exit code.
int RunCommand(const CommandLine& line, const QProcessEnvironment& environment,
               const Console& console);

}  // namespace quill
