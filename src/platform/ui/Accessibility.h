// The program's windows for assistive technology: a window of the stack says what it is and its
// caption; each row of a painted window is a child with role, name, rectangle, state and actions.
#pragma once

namespace quill {

// Makes such windows accessible from now on. Called once for each QApplication.
void InstallAccessibility();

}  // namespace quill
