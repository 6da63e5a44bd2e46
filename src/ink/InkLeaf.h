// A page as it is now: its strokes, its text laid out, and how a change is carried out on it.
//
// Lengths are units of the page, positions in the text UTF-16 units.
#pragma once

#include "ink/InkChange.h"
#include "ink/InkTextLayout.h"

namespace quill {

// What strokes take of kMostInkMemory.
qint64 MemoryOf(const std::vector<InkStrokePtr>& strokes);

class InkLeaf {
 public:
  const InkNote& Note() const { return m_note; }
  // Around all strokes' points.
  const QRect& InkBounds() const { return m_inkBounds; }
  qint64 StrokeMemory() const { return m_strokeMemory; }
  const InkTextLayout& TextLayout() const { return m_layout; }
  // The lines of the text; empty without text.
  QRect TextArea() const;
  // What the text paints, and what all of the page does; empty without.
  QRect PaintedTextArea() const;
  QRect PaintedArea() const;

  // Another page.
  void Load(InkNote note);
  // Text is wrapped within the page's margins.
  void SetWidth(quint32 width);
  void SetCreated(qint64 milliseconds) { m_note.Page.Created = static_cast<quint64>(milliseconds); }
  // A page without text: it will begin at this line; units.
  void PlaceText(qint32 top);
  // The same, where ink lies there: below all of the ink.
  void FindRoomForText();
  // The number of a pen. Pens never go: strokes that can come back name them.
  quint32 PenFor(const InkPen& pen);
  // A note whose strokes name the pens of this page.
  InkNote WithPensOfPage(InkNote note);
  void SetPreedit(const InkPreedit& preedit) { m_layout.SetPreedit(preedit); }

  // The changes by which a text takes the place of what is between two positions. Ink that lies
  // wholly below the line of the second one goes with the lines that follow. None when nothing
  // comes of it. The strokes are those of the page after changes that come before these.
  std::vector<InkChange> Typed(int from, int to, const QString& text,
                               const std::vector<InkStrokePtr>& strokes) const;

  // Carries a change out. Returns what has to be painted again.
  QRect Apply(const InkChange& change);

 private:
  void ApplyText(const InkTextChange& change);
  void ApplyWhole(const InkNote& note);
  QRect AreaOf(const InkChange& change) const;
  InkText TextAfter(const InkTextChange& change) const;
  void MeasureStrokes();
  void FollowStrokes(const InkChange& change);

  InkNote m_note;
  QRect m_inkBounds;
  qint64 m_strokeMemory = 0;
  InkTextLayout m_layout;
};

}  // namespace quill
