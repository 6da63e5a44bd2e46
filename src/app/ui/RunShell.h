// Runs the program's windows: one shell after another, each at its scale, until the user ends it.
#pragma once

namespace quill {

class Program;

// Makes and destroys QApplications: none may exist meanwhile. Returns the process' exit code.
int RunShell(Program& program, int& argc, char** argv);

}  // namespace quill
