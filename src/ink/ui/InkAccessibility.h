// The ink control for assistive technology: a document whose value is its typed text and whose
// description says how many strokes are on it.
#pragma once

namespace quill {

// Makes the control accessible from now on. Called once for each QApplication.
void InstallInkAccessibility();

}  // namespace quill
