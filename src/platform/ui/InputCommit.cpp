#include "platform/ui/InputCommit.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QLineEdit>

namespace quill {

void CommitInput() { QGuiApplication::inputMethod()->commit(); }

QString EditorText(const QLineEdit& editor) {
  CommitInput();
  return editor.text();
}

}  // namespace quill
