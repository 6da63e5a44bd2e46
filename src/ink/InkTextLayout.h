// Typed text laid out in lines of one height, and where in them a caret stands.
//
// Sizes are pixels at 100 %, from the page's top left corner; positions are UTF-16 units from 0.
// The lines stand on the page's rules. Stored soft breaks are kept, whatever the font here, so that
// text does not slide away from ink drawn on it; a paragraph is broken anew only when it is edited,
// or when it has no breaks and is far wider than a line.
#pragma once

#include <memory>
#include <vector>

#include "ink/InkParagraph.h"

namespace quill {

inline constexpr qreal kInkBaselineAboveRule = 5;

// What an input method is composing, shown at a position without being part of the text.
struct InkPreedit {
  int Position = 0;
  QString Text = {};
  int Cursor = 0;                                // within Text
  QList<QTextLayout::FormatRange> Formats = {};  // within Text

  bool operator==(const InkPreedit&) const = default;
};

// A line as it stands on the page, without its line end.
struct InkTextLine {
  QPointF Baseline = {};  // its left end
  int From = 0;
  int To = 0;
};

class InkTextLayout {
 public:
  InkTextLayout();

  // Keeps what is laid out already; nothing is composed any more. linePitch: units.
  void Load(const InkText& text, quint32 linePitch);
  // The same after an edit: the paragraphs from one position to another are broken anew.
  void Edit(const InkText& text, int from, int to);
  void SetPreedit(const InkPreedit& preedit);
  const InkPreedit& Preedit() const { return m_preedit; }

  // Of the lines as they are without what is composed.
  std::vector<int> SoftBreaks() const;

  // The place of the lines; empty without text.
  QRectF Bounds() const;
  // What is painted of them: more, by the overhang, since letters may be larger than a line.
  QRectF PaintedBounds() const;
  qreal Overhang() const { return m_overhang; }
  qreal LineHeight() const { return m_lineHeight; }
  // At least 1.
  int LineCount() const;
  std::vector<InkTextLine> Lines() const;
  int LineOf(int position) const;
  qreal TopOfLine(int line) const;
  // The first and the last place in a line.
  int LineBegin(int line) const;
  int LineLast(int line) const;

  // The nearest position.
  int PositionAt(QPointF at) const;
  // True where there is text, not only room for it.
  bool IsTextAt(QPointF at) const;
  QRectF Caret(int position) const;
  std::vector<QRectF> Selection(int from, int to) const;

  // Draws what lies in the area.
  void Paint(QPainter& painter, const QRectF& area) const;

 private:
  struct Placed {
    InkParagraph Paragraph = {};
    int Start = 0;      // in the text
    int FirstLine = 0;  // of the whole text
    std::shared_ptr<const InkLines> Stored = {};
    std::shared_ptr<const InkLines> Composed = {};  // instead, while something is

    const InkLines& Lines() const { return Composed ? *Composed : *Stored; }
    int Size() const { return static_cast<int>(Paragraph.Text.size()); }
    int End() const { return Start + Size(); }
  };
  // A line and the paragraph that it is in.
  struct Found {
    const Placed& In;
    int Line;  // in the paragraph
  };

  void Adopt(const InkText& text);
  void LayOutMissing(int editedFrom, int editedTo);
  void PlaceParagraphs();
  void Compose(Placed& placed);
  std::size_t IndexOf(int position) const;
  const Placed& ParagraphAt(int position) const { return m_paragraphs[IndexOf(position)]; }
  Found FindLine(int line) const;
  qreal X(const Found& found, int position) const;
  int ShownPosition(const Placed& placed, int position) const;
  int StoredPosition(const Placed& placed, int shown) const;
  int End() const { return m_paragraphs.back().End(); }

  QPointF m_origin;
  qreal m_width = 0;  // 0: lines end with their paragraphs only
  qreal m_lineHeight = 0;
  qreal m_overhang = 0;              // of letters beyond their lines
  std::vector<Placed> m_paragraphs;  // at least one
  InkPreedit m_preedit;
};

}  // namespace quill
