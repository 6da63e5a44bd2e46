#include "platform/ui/MultiEdit.h"

#include <QTextDocumentFragment>

namespace quill {

namespace {

constexpr int kMargin = 2;  // as a line editor's

// What was copied elsewhere may have no plain form of its own.
bool IsRichOnly(const QMimeData& source) { return source.hasHtml() && !source.hasText(); }

}  // namespace

CMultiEdit::CMultiEdit(const QString& text, QWidget* parent) : WithEditMenu(text, parent) {
  setTabChangesFocus(true);
  document()->setDocumentMargin(kMargin);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

bool CMultiEdit::canInsertFromMimeData(const QMimeData* source) const {
  return IsRichOnly(*source) || WithEditMenu::canInsertFromMimeData(source);
}

void CMultiEdit::insertFromMimeData(const QMimeData* source) {
  if (!IsRichOnly(*source)) return WithEditMenu::insertFromMimeData(source);
  textCursor().insertText(QTextDocumentFragment::fromHtml(source->html()).toPlainText());
}

}  // namespace quill
