// The ink control for assistive technology: a document whose value is its typed text and whose
// description says how many strokes are on it. The typed text can be read, found by place, and is
// told of as it changes.
#pragma once

class QString;

namespace quill {

class InkX;

// Makes the control accessible from now on. Called once for each QApplication.
void InstallInkAccessibility();

// Tells what of the typed text is another than what was told last, which it becomes.
void TellInkText(InkX& ink, QString& told);
void TellInkCaret(InkX& ink);

}  // namespace quill
