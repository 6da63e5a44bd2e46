// From a command line without a command to a program whose window may open: or to a word to the
// window of this home that is open already.
#pragma once

#include <QProcessEnvironment>

#include <memory>

#include "app/Console.h"
#include "app/Program.h"
#include "cli/CommandLine.h"

namespace quill {

struct WindowStart {
  std::unique_ptr<Program> Running;  // null: no window is to open
  int ExitCode = 0;                  // of the process, then
};

// Brings the line's contacts in first; a file that cannot be read ends the start. What ends it once
// the home is looked at is shown by a window as well, as the program's Problem, where nobody
// watches the console. A window that is open gets the line's request, which its memo files are too,
// or is asked to come to the front. Needs an application object.
WindowStart StartWindow(const CommandLine& words, const QProcessEnvironment& environment,
                        const Console& console);

}  // namespace quill
