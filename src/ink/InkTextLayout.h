// Typed text laid out in lines of one height, and where in them a caret stands.
//
// Sizes are pixels at 100 %, from the page's top left corner; positions are UTF-16 units from 0.
// The lines stand on the page's rules. Stored soft breaks are kept, whatever the font here, so that
// text does not slide away from ink drawn on it; a paragraph is broken anew only when it is edited,
// or when it has no breaks and is far wider than a line.
#pragma once

#include <QTextLayout>

#include <memory>
#include <optional>
#include <vector>

#include "ink/InkNote.h"

class QPainter;

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

enum class InkCaretMove {
  Left,
  Right,
  WordLeft,
  WordRight,
  Up,
  Down,
  LineStart,
  LineEnd,
  TextStart,
  TextEnd,
};

class InkTextLayout {
 public:
  // Keeps what is laid out already. linePitch: units.
  void Load(const InkText& text, quint32 linePitch);
  // The same after an edit: the paragraphs from one position to another are broken anew.
  void Edit(const InkText& text, int from, int to);
  void SetPreedit(const InkPreedit& preedit);
  const InkPreedit& Preedit() const { return m_preedit; }

  // Of the lines as they are now.
  std::vector<int> SoftBreaks() const;

  // Empty without text.
  QRectF Bounds() const;
  qreal LineHeight() const { return m_lineHeight; }
  // 0 without text.
  int LineCount() const;
  std::vector<InkTextLine> Lines() const;
  int LineOf(int position) const;
  qreal TopOfLine(int line) const;

  // The nearest position.
  int PositionAt(QPointF at) const;
  // True where there is text, not only room for it.
  bool IsTextAt(QPointF at) const;
  QRectF Caret(int position) const;
  std::vector<QRectF> Selection(int from, int to) const;
  int Moved(int position, InkCaretMove move) const;

  // Draws what lies in the area.
  void Paint(QPainter& painter, const QRectF& area) const;

 private:
  struct Paragraph {
    int Start = 0;      // in the text
    int FirstLine = 0;  // of the whole text
    QString Text = {};
    std::vector<InkTextRun> Runs = {};
    std::vector<int> Breaks = {};  // within the paragraph
    std::shared_ptr<QTextLayout> Layout = {};

    int LineCount() const { return std::max(Layout->lineCount(), 1); }
    int Size() const { return static_cast<int>(Text.size()); }
  };
  enum class Breaking { Stored, Anew };

  std::vector<Paragraph> Split(const InkText& text) const;
  void Adopt(std::vector<Paragraph> paragraphs);
  void LayOut(Paragraph& paragraph, Breaking breaking) const;
  void PlaceParagraphs();
  void LayOutAt(int position, Breaking breaking);
  const Paragraph& ParagraphAt(int position) const;
  const Paragraph& ParagraphOfLine(int line) const;
  QTextLine LineAt(int line) const;
  int ShownPosition(const Paragraph& paragraph, int position) const;
  int StoredPosition(const Paragraph& paragraph, int shown) const;
  int End() const;
  int BesideLine(int position, int line) const;
  int WordEdge(int position, InkCaretMove move) const;

  QPointF m_origin;
  qreal m_width = 0;  // 0: lines end with their paragraphs only
  qreal m_lineHeight = 24;
  std::vector<Paragraph> m_paragraphs;
  InkPreedit m_preedit;
};

}  // namespace quill
