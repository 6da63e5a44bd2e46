// Whoever composes holds a half-composed syllable back, and a date waits for the rest of its year:
// commit it before an editor is read or moved, or it is lost. Where the focus, a pen or a key ends
// a syllable, the screen's PreeditWatch does.
#pragma once

#include <QString>

class QLineEdit;

namespace quill {

void CommitInput();

// The editor's text, with what the input method still held.
QString EditorText(const QLineEdit& editor);

}  // namespace quill
