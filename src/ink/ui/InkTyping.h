// What the keyboard and input methods do to a page: they type, whatever the pen does, move the
// caret and take back.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>

#include "ink/InkCaret.h"
#include "ink/InkSelection.h"

namespace quill {

class InkTyping {
 public:
  // Both outlive it.
  InkTyping(InkDocument& document, InkSelection& selection)
      : m_document(document), m_selection(selection) {}

  // Keys that change the text. False for all others.
  bool TakeEditKey(const QKeyEvent& key);
  // Keys that move the caret.
  bool TakeCaretKey(const QKeyEvent& key);
  void TakeInput(const QInputMethodEvent& input);
  QVariant Query(Qt::InputMethodQuery query) const;

  // Types a text in place of what is selected of it.
  void Type(const QString& text);
  void DeleteSelection();

 private:
  void DeleteTo(InkCaretMove move);
  int CaretAfter(InkCaretMove move) const;

  InkDocument& m_document;
  InkSelection& m_selection;
};

}  // namespace quill
