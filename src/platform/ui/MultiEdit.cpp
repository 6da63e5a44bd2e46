#include "platform/ui/MultiEdit.h"

#include <QPainter>
#include <QTextDocumentFragment>

#include "platform/ui/RowPainter.h"

namespace quill {

namespace {

// The text has the margin of a line editor's. Where pixels of the screen are no whole pixels, what
// is inside a frame may paint over its edge: a blank edge stands between them.
constexpr int kFrame = 2;
constexpr int kMargin = 1;
// Percent of the window's and of the highlight's colour, as the style's frames have them.
constexpr int kFrameDarkness = 130;
constexpr int kFocusDarkness = 125;

QColor FrameColor(const QWidget& edit) {
  return edit.hasFocus() ? edit.palette().color(QPalette::Highlight).darker(kFocusDarkness)
                         : edit.palette().color(QPalette::Window).darker(kFrameDarkness);
}

// What was copied elsewhere may have no plain form of its own.
bool IsRichOnly(const QMimeData& source) { return source.hasHtml() && !source.hasText(); }

// Lines as they are shown: a long one is several.
bool LeadsOut(const QKeyEvent& key, QTextCursor cursor) {
  if (key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) return false;
  if (key.key() == Qt::Key_Up) return !cursor.movePosition(QTextCursor::Up);
  return key.key() == Qt::Key_Down && !cursor.movePosition(QTextCursor::Down);
}

}  // namespace

CMultiEdit::CMultiEdit(const QString& text, QWidget* parent) : WithEditMenu(text, parent) {
  setTabChangesFocus(true);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(kFrame);
  document()->setDocumentMargin(kMargin);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// A line that the style draws is not where its pixels are at every scale.
bool CMultiEdit::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return WithEditMenu::event(event);
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  DrawFrame(painter, rect(), FrameColor(*this).rgb());
  return true;
}

void CMultiEdit::keyPressEvent(QKeyEvent* event) {
  const bool isParents = !isReadOnly() && LeadsOut(*event, textCursor());
  isParents ? event->ignore() : WithEditMenu::keyPressEvent(event);
}

bool CMultiEdit::canInsertFromMimeData(const QMimeData* source) const {
  return IsRichOnly(*source) || WithEditMenu::canInsertFromMimeData(source);
}

void CMultiEdit::insertFromMimeData(const QMimeData* source) {
  if (!IsRichOnly(*source)) return WithEditMenu::insertFromMimeData(source);
  textCursor().insertText(QTextDocumentFragment::fromHtml(source->html()).toPlainText());
}

}  // namespace quill
