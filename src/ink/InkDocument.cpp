#include "ink/InkDocument.h"

namespace quill {

InkDocument::InkDocument() { m_steps.setUndoLimit(1000); }

void InkDocument::SetData(const QByteArray& data) { m_original = data; }

QByteArray InkDocument::Data() const { return m_original; }

void InkDocument::Replace(const InkNote& note) {
  m_note = note;
  Q_EMIT Edited();
}

}  // namespace quill
