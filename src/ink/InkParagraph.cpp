#include "ink/InkParagraph.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

#include "ink/InkTextEditing.h"

namespace quill {

namespace {

using Formats = QList<QTextLayout::FormatRange>;

// A paragraph without breaks that is so many times wider than a line was never laid out.
constexpr qreal kNeverLaidOut = 1.25;

QFont FontOf(const InkTextRun& run) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(InkFontPixels(run));
  font.setBold((run.Flags & kInkBold) != 0);
  font.setItalic((run.Flags & kInkItalic) != 0);
  font.setUnderline((run.Flags & kInkUnderline) != 0);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

Formats FormatsOf(const std::vector<InkTextRun>& runs) {
  Formats formats;
  int start = 0;
  for (const InkTextRun& run : runs) {
    QTextCharFormat format;
    format.setFont(FontOf(run));
    format.setForeground(QColor::fromRgba(run.Color));
    formats.append({start, run.Length, format});
    start += run.Length;
  }
  return formats;
}

// The part of the formats between two positions, counted from the first.
Formats PartOf(const Formats& formats, int from, int end) {
  Formats part;
  for (QTextLayout::FormatRange format : formats) {
    const int begin = std::max(format.start, from);
    format.length = std::min(format.start + format.length, end) - begin;
    format.start = begin - from;
    if (format.length > 0) part.append(format);
  }
  return part;
}

// Those of a paragraph that became longer: what is composed looks as what stands before it.
Formats FormatsAround(Formats formats, const InkComposed& composed) {
  const auto added = static_cast<int>(composed.Text.size());
  for (QTextLayout::FormatRange& format : formats) {
    const bool isBehind = format.start >= composed.At && format.start > 0;
    const bool isAround = !isBehind && format.start + format.length >= composed.At;
    if (isBehind) format.start += added;
    if (isAround) format.length += added;
  }
  for (QTextLayout::FormatRange format : composed.Formats) {
    format.start += composed.At;
    formats.append(format);
  }
  return formats;
}

std::shared_ptr<QTextLayout> LaidOut(const QString& text, const Formats& formats,
                                     const QTextOption& option, qreal width) {
  auto layout = std::make_shared<QTextLayout>(text, FontOf({}));
  layout->setFormats(formats);
  layout->setTextOption(option);
  layout->beginLayout();
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine())
    line.setLineWidth(width);
  layout->endLayout();
  return layout;
}

std::vector<int> BreaksFor(const QString& text, const Formats& formats, qreal width) {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  if (width <= 0) option.setWrapMode(QTextOption::NoWrap);
  const auto layout = LaidOut(text, formats, option, width);
  std::vector<int> breaks;
  for (int i = 1; i < layout->lineCount(); ++i) breaks.push_back(layout->lineAt(i).textStart());
  return breaks;
}

// Hands out runs from their beginning on.
class RunReader {
 public:
  explicit RunReader(const std::vector<InkTextRun>& runs)
      : m_next(runs.begin()), m_end(runs.end()) {}

  std::vector<InkTextRun> Take(int length) {
    std::vector<InkTextRun> taken;
    while (length > 0 && m_next != m_end) {
      InkTextRun part = *m_next;
      part.Length = std::min(length, m_next->Length - m_used);
      length -= part.Length;
      m_used += part.Length;
      if (part.Length > 0) taken.push_back(part);
      if (m_used < m_next->Length) break;
      ++m_next;
      m_used = 0;
    }
    return taken;
  }

 private:
  std::vector<InkTextRun>::const_iterator m_next;
  std::vector<InkTextRun>::const_iterator m_end;
  int m_used = 0;  // of the next one
};

}  // namespace

int InkFontPixels(const InkTextRun& run) {
  return std::clamp(qRound(static_cast<qreal>(run.Size) / kInkUnitsPerPixel), 1, 1000);
}

std::vector<InkParagraph> SplitInkText(const InkText& text) {
  std::vector<InkParagraph> paragraphs;
  RunReader runs(text.Runs);
  auto nextBreak = text.SoftBreaks.begin();
  for (int start = 0; start <= text.Text.size();) {
    const int end = ParagraphEnd(text.Text, start);
    InkParagraph& paragraph = paragraphs.emplace_back();
    paragraph.Text = text.Text.mid(start, end - start);
    paragraph.Runs = runs.Take(end - start);
    runs.Take(1);  // the line end's
    for (; nextBreak != text.SoftBreaks.end() && *nextBreak <= end; ++nextBreak)
      if (start < *nextBreak && *nextBreak < end) paragraph.Breaks.push_back(*nextBreak - start);
    start = end + 1;
  }
  return paragraphs;
}

InkLines::InkLines(const InkParagraph& paragraph, qreal width, InkBreaking breaking) {
  const Formats formats = FormatsOf(paragraph.Runs);
  if (breaking == InkBreaking::Stored) {
    AddPieces(paragraph.Text, formats, paragraph.Breaks);
    const bool isTooWide = width > 0 && m_width > width * kNeverLaidOut;
    if (!paragraph.Breaks.empty() || !isTooWide) return;
    m_lines.clear();
    m_width = 0;
  }
  AddPieces(paragraph.Text, formats, BreaksFor(paragraph.Text, formats, width));
}

InkLines::InkLines(const InkParagraph& paragraph, qreal width, const InkComposed& composed) {
  const QString text = QString(paragraph.Text).insert(composed.At, composed.Text);
  const Formats formats = FormatsAround(FormatsOf(paragraph.Runs), composed);
  AddPieces(text, formats, BreaksFor(text, formats, width));
}

// Each line by itself, so that it looks the same whether it was broken here or stored.
void InkLines::AddPieces(const QString& text, const Formats& formats,
                         const std::vector<int>& breaks) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  int begin = 0;
  const auto add = [&](int end) {
    AddPiece(LaidOut(text.mid(begin, end - begin), PartOf(formats, begin, end), option, 0), begin);
    begin = end;
  };
  std::ranges::for_each(breaks, add);
  add(static_cast<int>(text.size()));
}

void InkLines::AddPiece(const std::shared_ptr<QTextLayout>& piece, int begin) {
  for (int i = 0; i < piece->lineCount(); ++i) {
    m_lines.push_back({piece, begin, i});
    m_width = std::max(m_width, piece->lineAt(i).naturalTextWidth());
  }
}

std::vector<int> InkLines::Breaks() const {
  std::vector<int> breaks;
  for (int line = 1; line < Count(); ++line) breaks.push_back(Begin(line));
  return breaks;
}

int InkLines::Begin(int line) const {
  return m_lines[line].PieceBegin + m_lines[line].Shown().textStart();
}

int InkLines::End(int line) const { return Begin(line) + m_lines[line].Shown().textLength(); }

int InkLines::LineOf(int position) const {
  int line = Count() - 1;
  while (line > 0 && Begin(line) > position) --line;
  return line;
}

qreal InkLines::X(int line, int position) const {
  return m_lines[line].Shown().cursorToX(position - m_lines[line].PieceBegin);
}

int InkLines::Last(int line) const {
  const Line& at = m_lines[line];
  const int end = End(line);
  if (line + 1 == Count()) return end;
  return at.PieceBegin + at.Piece->previousCursorPosition(end - at.PieceBegin);
}

int InkLines::PositionAt(int line, qreal x) const {
  const Line& at = m_lines[line];
  return std::min(at.PieceBegin + at.Shown().xToCursor(x), Last(line));
}

qreal InkLines::Width(int line) const { return m_lines[line].Shown().naturalTextWidth(); }

void InkLines::Paint(QPainter& painter, int line, QPointF baseline) const {
  const QTextLine shown = m_lines[line].Shown();
  shown.draw(&painter, baseline - QPointF(0, shown.ascent()));
}

}  // namespace quill
