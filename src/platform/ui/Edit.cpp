#include "platform/ui/Edit.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>

#include <utility>

#include "platform/TextFitting.h"

namespace quill {

namespace {

// A blank for each line break, of which CR LF is one.
QString JoinLines(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (const char16_t separator : {u'\u2028', u'\u2029'}) text.replace(separator, u' ');
  return OnOneLine(std::move(text));
}

bool HasSeveralLines(const QString& text) { return JoinLines(text) != text; }

// A cursor that has moved ends the step that Undo takes back.
void EndStep(QLineEdit& edit) {
  if (edit.hasSelectedText()) return;
  const int at = edit.cursorPosition();
  edit.setCursorPosition(at > 0 ? at - 1 : at + 1);
  edit.setCursorPosition(at);
}

// False, and nothing is done, where Qt's own way changes nothing.
bool PasteSeveralLines(QLineEdit& edit, QClipboard::Mode mode) {
  const QString text = QGuiApplication::clipboard()->text(mode);
  if (edit.isReadOnly() || !HasSeveralLines(text)) return false;
  EndStep(edit);
  edit.insert(JoinLines(text));
  EndStep(edit);
  return true;
}

// The selection of a desktop that has one is pasted by a key of its own.
QClipboard::Mode PastedBy(const QKeyEvent& key) {
  const bool isSelection =
      key.key() == Qt::Key_Insert && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  return isSelection ? QClipboard::Selection : QClipboard::Clipboard;
}

}  // namespace

void PasteLine(QLineEdit& edit) {
  if (!PasteSeveralLines(edit, QClipboard::Clipboard)) edit.paste();
}

CEdit::CEdit(const QString& text, QWidget* parent) : WithEditMenu(text, parent) {}

void CEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste) && PasteSeveralLines(*this, PastedBy(*event)))
    return event->accept();
  const bool isTyped = event->text().size() > 1 && HasSeveralLines(event->text());
  if (!isTyped) return WithEditMenu::keyPressEvent(event);
  insert(JoinLines(event->text()));
  event->accept();
}

void CEdit::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent joined(event->preeditString(), event->attributes());
  joined.setCommitString(JoinLines(event->commitString()), event->replacementStart(),
                         event->replacementLength());
  WithEditMenu::inputMethodEvent(&joined);
  event->setAccepted(joined.isAccepted());
}

void CEdit::dropEvent(QDropEvent* event) {
  QMimeData text;
  text.setText(JoinLines(event->mimeData()->text()));
  QDropEvent joined(event->position(), event->possibleActions(), &text, event->buttons(),
                    event->modifiers());
  joined.setDropAction(event->dropAction());
  WithEditMenu::dropEvent(&joined);
  event->setDropAction(joined.dropAction());
  event->setAccepted(joined.isAccepted());
}

// With its middle button a mouse pastes what is selected elsewhere.
void CEdit::mouseReleaseEvent(QMouseEvent* event) {
  const bool isPaste = event->button() == Qt::MiddleButton;
  if (isPaste && PasteSeveralLines(*this, QClipboard::Selection)) return event->accept();
  WithEditMenu::mouseReleaseEvent(event);
}

}  // namespace quill
