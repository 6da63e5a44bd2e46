#include "platform/ui/KeyTyper.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTextCharFormat>
#include <QWidget>

#include "platform/ui/PreeditWatch.h"

namespace quill {

namespace {

// As a keyboard's key for this character is called; 0 where there is none.
int KeyFor(const QString& text) {
  const QChar letter = text.front().toUpper();
  return letter < QChar(0x7F) ? letter.unicode() : 0;
}

QInputMethodEvent::Attribute Underline(const QString& text) {
  QTextCharFormat format;
  format.setFontUnderline(true);
  return {QInputMethodEvent::TextFormat, 0, static_cast<int>(text.size()), format};
}

QInputMethodEvent::Attribute CaretBehind(const QString& text) {
  return {QInputMethodEvent::Cursor, static_cast<int>(text.size()), 1};
}

}  // namespace

bool TakesInputMethod(const QWidget& widget) {
  return widget.testAttribute(Qt::WA_InputMethodEnabled) &&
         widget.inputMethodQuery(Qt::ImEnabled).toBool();
}

QWidget& KeyTyper::Target() const {
  QWidget* const focus = QApplication::focusWidget();
  return focus ? *focus : m_elsewhere;
}

void KeyTyper::Carry(const KeyIntention& intention) {
  MeetPreedit();
  switch (intention.Does) {
    case KeyAction::Text:
      return Type(intention.Text);
    case KeyAction::Jamo:
      return Compose(intention.Text);
    case KeyAction::Backspace:
      return TakeBack();
    case KeyAction::Return:
      return Press(Qt::Key_Return, QStringLiteral("\r"));
    case KeyAction::Tab:
      return Press(Qt::Key_Tab, QStringLiteral("\t"));
    case KeyAction::Left:
      return Press(Qt::Key_Left);
    case KeyAction::Right:
      return Press(Qt::Key_Right);
    default:
      return;
  }
}

// The syllable may have become text meanwhile, or somebody else may be composing there: then this
// one is over.
void KeyTyper::MeetPreedit() {
  if (m_preedit.Preedit(&Target()) == m_composer.Preedit()) return;
  m_preedit.Commit();
  m_composer.Flush();
}

void KeyTyper::Type(const QString& text) {
  if (TakesInputMethod(Target()))
    Send({m_composer.Flush() + text, {}});
  else
    Press(KeyFor(text), text);
}

void KeyTyper::Compose(const QString& jamo) {
  if (TakesInputMethod(Target()))
    Send(m_composer.Feed(jamo.front().unicode()));
  else
    Press(0, jamo);
}

void KeyTyper::TakeBack() {
  if (m_composer.IsComposing())
    Send(m_composer.Backspace());
  else
    Press(Qt::Key_Backspace, QStringLiteral("\b"));
}

void KeyTyper::Send(const HangulStep& step) {
  QList<QInputMethodEvent::Attribute> attributes;
  if (!step.Preedit.isEmpty()) attributes = {Underline(step.Preedit), CaretBehind(step.Preedit)};
  QInputMethodEvent event(step.Preedit, attributes);
  event.setCommitString(step.Committed);
  QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
}

// The press may end a dialog, or run one.
void KeyTyper::Press(int key, const QString& text) const {
  const QPointer<QWidget> target = &Target();
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  if (target) QCoreApplication::sendEvent(target, &release);
}

}  // namespace quill
