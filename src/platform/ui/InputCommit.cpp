#include "platform/ui/InputCommit.h"

#include <QApplication>
#include <QInputMethod>
#include <QLineEdit>

#include "platform/ui/DateEdit.h"
#include "platform/ui/PreeditWatch.h"
#include "platform/ui/Screen.h"

namespace quill {

void CommitInput() {
  if (auto* const date = qobject_cast<CDateEdit*>(QApplication::focusWidget()))
    date->TakeShortYear();
  if (const CScreen* const screen = ScreenAround(QApplication::focusWidget()))
    screen->Preedit().Commit();
  else
    QGuiApplication::inputMethod()->commit();
}

QString EditorText(const QLineEdit& editor) {
  CommitInput();
  return editor.text();
}

}  // namespace quill
