// A text editor, of one line or of several, as the commands of an Edit menu see it.
#pragma once

#include <functional>

class QKeyEvent;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace quill {

// How it stands and what can be done to it. Without an editor all of it does nothing. Not to be
// kept: it does not own the editor.
struct EditField {
  bool CanUndo = false;
  bool HasSelection = false;
  std::function<void()> Undo = [] {};
  std::function<void()> Cut = [] {};
  std::function<void()> Copy = [] {};
  std::function<void()> Paste = [] {};
  std::function<void()> Clear = [] {};  // what is selected
};

// An editor for a single line cuts at 32,767 units unless it is told otherwise.
inline constexpr int kLongestText = 1'000'000'000;

EditField FieldOf(QLineEdit& edit);
EditField FieldOf(QPlainTextEdit& edit);

// Whether this key begins a text where no field is open yet. A blank does not.
bool BeginsText(const QKeyEvent& key);
// Gives the key to the field that was opened for it, which has the focus now.
void HandToField(QKeyEvent& key, const QWidget& from);

}  // namespace quill
