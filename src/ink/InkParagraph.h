// One paragraph of typed text, and the lines that it is laid out in.
//
// Sizes are pixels at 100 %, positions are UTF-16 units from the paragraph's beginning. A line
// begins where the one before it ends; a position between the two belongs to the second.
#pragma once

#include <QTextLayout>

#include <memory>
#include <vector>

#include "ink/InkNote.h"

class QPainter;

namespace quill {

// What is in a paragraph, without its line end.
struct InkParagraph {
  QString Text = {};
  std::vector<InkTextRun> Runs = {};
  std::vector<int> Breaks = {};  // where its second line and those after it begin

  bool operator==(const InkParagraph&) const = default;
};

// The paragraphs of a text; at least one.
std::vector<InkParagraph> SplitInkText(const InkText& text);

// What is composed within a paragraph, without being part of it.
struct InkComposed {
  int At = 0;
  QString Text = {};
  QList<QTextLayout::FormatRange> Formats = {};  // within Text
};

// The size of a run's font.
int InkFontPixels(const InkTextRun& run);

enum class InkBreaking {
  Stored,  // where its breaks say; without any only if it is far wider than a line
  Anew,
};

class InkLines {
 public:
  // A width of 0 breaks nothing.
  InkLines(const InkParagraph& paragraph, qreal width, InkBreaking breaking);
  // As it looks while something is composed: longer by that, and broken anew.
  InkLines(const InkParagraph& paragraph, qreal width, const InkComposed& composed);

  int Count() const { return static_cast<int>(m_lines.size()); }
  // Where the lines after the first begin.
  std::vector<int> Breaks() const;
  int Begin(int line) const;
  int End(int line) const;
  int LineOf(int position) const;
  // The last place of a line that is still in it.
  int Last(int line) const;

  // Of a position in a line or at its end, from the line's left end.
  qreal X(int line, int position) const;
  // The nearest position in a line.
  int PositionAt(int line, qreal x) const;
  qreal Width(int line) const;
  // The widest of all.
  qreal Width() const { return m_width; }
  void Paint(QPainter& painter, int line, QPointF baseline) const;

 private:
  // A piece is what lies between two breaks: a line, or more where the text itself has line ends.
  struct Line {
    std::shared_ptr<QTextLayout> Piece;
    int PieceBegin = 0;  // in the paragraph
    int Number = 0;      // in the piece

    QTextLine Shown() const { return Piece->lineAt(Number); }
  };

  void AddPieces(const QString& text, const QList<QTextLayout::FormatRange>& formats,
                 const std::vector<int>& breaks);
  void AddPiece(const std::shared_ptr<QTextLayout>& piece, int begin);

  std::vector<Line> m_lines;
  qreal m_width = 0;  // of the widest line
};

}  // namespace quill
