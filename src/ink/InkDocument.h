// The page that is being looked at or written on: its strokes and text, the bytes that it came
// from, and the steps by which it changed since.
//
// Every change is a step that can be undone, text and ink alike; the last 1,000 are kept. Lengths
// are units of the page, positions in the text UTF-16 units.
#pragma once

#include <QObject>
#include <QUndoStack>

#include "ink/InkLeaf.h"
#include "ink/InkStep.h"

namespace quill {

// What is to be said of the bytes that were set.
enum class InkNotice {
  None,
  Damaged,  // what was saved of it is shown
  Lost,     // damaged, and nothing was saved of it
  Foreign,  // not a note: nothing is shown
  Newer,    // of a newer version: what is understood is shown
  Full,     // no more ink goes onto the page
};

class InkDocument : public QObject {
  Q_OBJECT
 public:
  InkDocument();
  ~InkDocument() override;

  // Any bytes; none are an empty page. Forgets all steps.
  void SetData(const QByteArray& data);
  // The very bytes that were set while nothing differs from them; none for an empty page.
  QByteArray Data() const;
  InkNotice Notice() const;
  // A note that is lost, foreign or newer can only be cleared as a whole.
  bool IsLocked() const;

  const InkNote& Note() const { return m_leaf.Note(); }
  // Around all strokes' points.
  const QRect& InkBounds() const { return m_leaf.InkBounds(); }
  const InkTextLayout& TextLayout() const { return m_leaf.TextLayout(); }
  QUndoStack& Steps() { return m_steps; }
  const QUndoStack& Steps() const { return m_steps; }

  // An empty page is so wide until its first content fixes that; later steps change nothing of it.
  void SetNewPageWidth(quint32 width);

  // Writes a stroke with this pen on top of all others. Where the page is full nothing comes of it.
  void AddStroke(InkStroke stroke, const InkPen& pen);
  // gesture: takes of one number are one step.
  void Erase(const std::vector<InkStrokePtr>& strokes, int gesture);
  // Not over the page's left and top edge. Returns the moved strokes.
  std::vector<InkStrokePtr> Move(const std::vector<InkStrokePtr>& strokes, QPoint by);
  // Deletes strokes and the text between two positions, as one step.
  void Delete(const std::vector<InkStrokePtr>& strokes, int from, int to);
  // Puts the strokes of a fragment on the page, moved, and its text in place of what is between two
  // positions. Returns the strokes as they are on the page.
  std::vector<InkStrokePtr> Paste(const InkNote& fragment, QPoint by, int from, int to);
  // Text that is begun on an empty page of text begins at the line of this place; units.
  void PlaceText(int y);
  // Types a text in place of what is between two positions. Typing goes on in one step within a
  // second. However text changes, ink that lies wholly below the line of the second position moves
  // with the lines that follow. Text that would begin on ink begins below all of it.
  void Type(int from, int to, const QString& text);
  // Shows what an input method composes; it is not part of the page.
  void SetPreedit(const InkPreedit& preedit);

  // The whole page, also of a note that cannot be read. A step.
  void ClearAll();
  // Puts another page in the place of this one. A step.
  void Replace(const InkNote& note);

 Q_SIGNALS:
  // A stroke was written on top of all others; Changed does not come for it.
  void StrokeAdded(const quill::InkStrokePtr& stroke);
  // What lies in this rectangle has to be painted again.
  void Changed(const QRect& area);
  // The text is another one; the caret belongs here.
  void TextChanged(int caret);
  // After each change of the page, whichever it was, and after StrokeAdded and Changed.
  void Edited();

 private:
  friend class InkStep;

  bool HasRoomFor(const std::vector<InkStrokePtr>& strokes) const;
  bool HasText() const { return !Note().Text.Text.isEmpty(); }
  bool WasNeverWritten() const;
  void FollowNewPageWidth();
  void BeginPage();
  void Push(std::vector<InkChange> changes, const InkStepKind& kind = {});
  void Apply(const std::vector<InkChange>& changes);

  InkLeaf m_leaf;
  QByteArray m_original;
  InkNotice m_notice = InkNotice::None;
  quint32 m_newPageWidth = kDefaultPageWidth;
  QUndoStack m_steps;
};

}  // namespace quill
