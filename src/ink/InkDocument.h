// The page that is being looked at or written on: its strokes and text, the bytes that it came
// from, and the steps by which it changed since.
#pragma once

#include <QObject>
#include <QUndoStack>

#include "ink/InkNote.h"

namespace quill {

// What is to be said of the bytes that were set.
enum class InkNotice {
  None,
  Damaged,     // part of it is shown
  Unreadable,  // foreign or of a newer version: nothing can be changed but clearing all of it
};

class InkDocument : public QObject {
  Q_OBJECT
 public:
  InkDocument();

  // Any bytes; none are an empty page. Forgets all steps.
  void SetData(const QByteArray& data);
  // The very bytes that were set while nothing differs from them; none for an empty page.
  QByteArray Data() const;
  InkNotice Notice() const { return m_notice; }

  const InkNote& Note() const { return m_note; }
  // Puts another page in the place of this one, as a step that can be undone.
  void Replace(const InkNote& note);

  QUndoStack& Steps() { return m_steps; }

 Q_SIGNALS:
  // A stroke was written on top of all others; Changed does not come for it.
  void StrokeAdded(const quill::InkStrokePtr& stroke);
  // What lies in this rectangle (units) has to be painted again.
  void Changed(const QRect& area);
  // After each change of the page, whichever it was.
  void Edited();

 private:
  InkNote m_note;
  QByteArray m_original;
  InkNotice m_notice = InkNotice::None;
  QUndoStack m_steps;
};

}  // namespace quill
