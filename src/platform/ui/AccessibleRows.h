// Painted windows for assistive technology: each row is a child with role, name, rectangle, state
// and actions.
#pragma once

namespace quill {

// Makes painted windows accessible from now on. Called once for each QApplication.
void InstallAccessibleRows();

}  // namespace quill
