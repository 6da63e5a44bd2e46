// Input methods hold a half-composed syllable back: commit it before an editor is read, moved or
// left, or it is lost.
#pragma once

#include <QString>

class QLineEdit;

namespace quill {

void CommitInput();

// The editor's text, with what the input method still held.
QString EditorText(const QLineEdit& editor);

}  // namespace quill
