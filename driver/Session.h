// One run of the program under a driver, from the command line to the end.
#pragma once

#include "driver/Operations.h"
#include "driver/Options.h"

namespace quill::driver {

// Runs the program with these operations on the standard input and output, on Qt's offscreen
// platform unless the environment names another. Returns the process' exit code; 2 when no start
// was possible, with the reason on the standard error.
int RunSession(const OperationTable& operations, int& argc, char** argv);

}  // namespace quill::driver
