#include "ink/InkTextLayout.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "ink/InkTextEditing.h"

namespace quill {

namespace {

// A paragraph without breaks that is so many times wider than a line was never laid out.
constexpr qreal kNeverLaidOut = 1.25;

qreal Pixels(qint64 units) { return static_cast<qreal>(units) / kInkUnitsPerPixel; }

QFont FontOf(const InkTextRun& run) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(std::clamp(qRound(Pixels(run.Size)), 1, 1000));
  font.setBold((run.Flags & kInkBold) != 0);
  font.setItalic((run.Flags & kInkItalic) != 0);
  font.setUnderline((run.Flags & kInkUnderline) != 0);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QList<QTextLayout::FormatRange> FormatsOf(const std::vector<InkTextRun>& runs) {
  QList<QTextLayout::FormatRange> formats;
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

// The lines' own height is that of their fonts: they are moved so that all stand on their rules.
void PlaceLine(QTextLine line, qreal lineHeight) {
  const qreal baseline = (line.lineNumber() + 1) * lineHeight - kInkBaselineAboveRule;
  line.setPosition(QPointF(0, baseline - line.ascent()));
}

}  // namespace

void InkTextLayout::Load(const InkText& text, quint32 linePitch) {
  m_origin = {Pixels(text.X), Pixels(text.Y)};
  const qreal width = Pixels(text.WrapWidth);
  const qreal lineHeight = linePitch > 0 ? Pixels(linePitch) : 24;
  if (width != m_width || lineHeight != m_lineHeight) m_paragraphs.clear();
  m_width = width;
  m_lineHeight = lineHeight;
  Adopt(Split(text));
}

void InkTextLayout::Edit(const InkText& text, int from, int to) {
  Adopt(Split(text));
  for (Paragraph& paragraph : m_paragraphs)
    if (paragraph.Start <= to && paragraph.Start + paragraph.Size() >= from)
      LayOut(paragraph, Breaking::Anew);
  PlaceParagraphs();
}

void InkTextLayout::SetPreedit(const InkPreedit& preedit) {
  if (preedit == m_preedit) return;
  const int before = m_preedit.Position;
  const bool had = !m_preedit.Text.isEmpty();
  m_preedit = {};
  if (had) LayOutAt(before, Breaking::Stored);
  m_preedit = preedit;
  if (!preedit.Text.isEmpty()) LayOutAt(preedit.Position, Breaking::Anew);
}

void InkTextLayout::LayOutAt(int position, Breaking breaking) {
  if (m_paragraphs.empty()) Adopt(Split({.Text = QString(), .Runs = {}, .SoftBreaks = {}}));
  auto& paragraph = const_cast<Paragraph&>(ParagraphAt(position));
  LayOut(paragraph, breaking);
  PlaceParagraphs();
}

std::vector<InkTextLayout::Paragraph> InkTextLayout::Split(const InkText& text) const {
  std::vector<Paragraph> paragraphs;
  auto nextBreak = text.SoftBreaks.begin();
  for (int start = 0; start <= text.Text.size();) {
    const int end = ParagraphEnd(text.Text, start);
    Paragraph paragraph;
    paragraph.Start = start;
    paragraph.Text = text.Text.mid(start, end - start);
    for (; nextBreak != text.SoftBreaks.end() && *nextBreak <= end; ++nextBreak)
      paragraph.Breaks.push_back(*nextBreak - start);
    paragraphs.push_back(std::move(paragraph));
    start = end + 1;
  }
  std::size_t at = 0;
  int start = 0;
  for (const InkTextRun& run : text.Runs) {  // each paragraph's share of the runs
    const int end = start + run.Length;
    for (; at < paragraphs.size() && paragraphs[at].Start < end; ++at) {
      Paragraph& paragraph = paragraphs[at];
      const int paragraphEnd = paragraph.Start + paragraph.Size();
      InkTextRun share = run;
      share.Length = std::min(end, paragraphEnd) - std::max(start, paragraph.Start);
      if (share.Length > 0) paragraph.Runs.push_back(share);
      if (paragraphEnd >= end) break;
    }
    start = end;
  }
  return paragraphs;
}

// Paragraphs that are as before, from the front and from the back, keep their layout.
void InkTextLayout::Adopt(std::vector<Paragraph> paragraphs) {
  const auto same = [](const Paragraph& one, const Paragraph& other) {
    return one.Text == other.Text && one.Runs == other.Runs && one.Breaks == other.Breaks;
  };
  std::size_t front = 0;
  const std::size_t shared = std::min(paragraphs.size(), m_paragraphs.size());
  for (; front < shared && same(paragraphs[front], m_paragraphs[front]); ++front)
    paragraphs[front].Layout = m_paragraphs[front].Layout;
  for (std::size_t back = 1; back <= shared - front; ++back) {
    Paragraph& now = paragraphs[paragraphs.size() - back];
    const Paragraph& before = m_paragraphs[m_paragraphs.size() - back];
    if (!same(now, before)) break;
    now.Layout = before.Layout;
  }
  for (Paragraph& paragraph : paragraphs)
    if (!paragraph.Layout) LayOut(paragraph, Breaking::Stored);
  m_paragraphs = std::move(paragraphs);
  PlaceParagraphs();
}

void InkTextLayout::LayOut(Paragraph& paragraph, Breaking breaking) const {
  const InkTextRun first = paragraph.Runs.empty() ? InkTextRun{} : paragraph.Runs.front();
  auto layout = std::make_shared<QTextLayout>(paragraph.Text, FontOf(first));
  QList<QTextLayout::FormatRange> formats = FormatsOf(paragraph.Runs);
  const int preeditAt = m_preedit.Position - paragraph.Start;
  if (!m_preedit.Text.isEmpty() && preeditAt >= 0 && preeditAt <= paragraph.Size()) {
    layout->setPreeditArea(preeditAt, m_preedit.Text);
    for (QTextLayout::FormatRange format : m_preedit.Formats) {
      format.start += preeditAt;
      formats.append(format);
    }
  }
  layout->setFormats(formats);
  layout->beginLayout();
  if (breaking == Breaking::Stored) {
    int start = 0;
    for (const int at : paragraph.Breaks) {
      if (QTextLine line = layout->createLine(); line.isValid()) line.setNumColumns(at - start);
      start = at;
    }
  }
  const bool keepsLast = breaking == Breaking::Stored && !paragraph.Breaks.empty();
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    line.setNumColumns(std::max(paragraph.Size() + static_cast<int>(m_preedit.Text.size()), 1));
    const bool mayStay = breaking == Breaking::Stored &&
                         (keepsLast || line.naturalTextWidth() <= m_width * kNeverLaidOut);
    if (!mayStay && m_width > 0) line.setLineWidth(m_width);
  }
  layout->endLayout();
  for (int i = 0; i < layout->lineCount(); ++i) PlaceLine(layout->lineAt(i), m_lineHeight);
  paragraph.Layout = std::move(layout);
  if (m_preedit.Text.isEmpty()) {
    paragraph.Breaks.clear();
    for (int i = 1; i < paragraph.Layout->lineCount(); ++i)
      paragraph.Breaks.push_back(paragraph.Layout->lineAt(i).textStart());
  }
}

void InkTextLayout::PlaceParagraphs() {
  int line = 0;
  for (Paragraph& paragraph : m_paragraphs) {
    paragraph.FirstLine = line;
    line += paragraph.LineCount();
  }
}

std::vector<int> InkTextLayout::SoftBreaks() const {
  std::vector<int> breaks;
  for (const Paragraph& paragraph : m_paragraphs)
    for (const int at : paragraph.Breaks) breaks.push_back(paragraph.Start + at);
  return breaks;
}

const InkTextLayout::Paragraph& InkTextLayout::ParagraphAt(int position) const {
  const auto after = std::ranges::upper_bound(m_paragraphs, position, {}, &Paragraph::Start);
  return after == m_paragraphs.begin() ? *after : *std::prev(after);
}

const InkTextLayout::Paragraph& InkTextLayout::ParagraphOfLine(int line) const {
  const auto after = std::ranges::upper_bound(m_paragraphs, line, {}, &Paragraph::FirstLine);
  return after == m_paragraphs.begin() ? *after : *std::prev(after);
}

int InkTextLayout::ShownPosition(const Paragraph& paragraph, int position) const {
  const int within = position - paragraph.Start;
  if (m_preedit.Text.isEmpty() || position < m_preedit.Position) return within;
  const bool isCaret = position == m_preedit.Position;
  return within + (isCaret ? m_preedit.Cursor : static_cast<int>(m_preedit.Text.size()));
}

int InkTextLayout::StoredPosition(const Paragraph& paragraph, int shown) const {
  const int length = static_cast<int>(m_preedit.Text.size());
  const int at = m_preedit.Position - paragraph.Start;
  if (length == 0 || shown <= at || at < 0) return paragraph.Start + shown;
  return paragraph.Start + std::max(at, shown - length);
}

QRectF InkTextLayout::Bounds() const {
  if (m_paragraphs.empty() || (m_paragraphs.size() == 1 && m_paragraphs.front().Text.isEmpty() &&
                               m_preedit.Text.isEmpty())) {
    return {};
  }
  qreal width = 1;  // empty lines are there too
  for (const Paragraph& paragraph : m_paragraphs)
    for (int i = 0; i < paragraph.Layout->lineCount(); ++i)
      width = std::max(width, paragraph.Layout->lineAt(i).naturalTextWidth());
  return {m_origin.x(), m_origin.y(), width, LineCount() * m_lineHeight};
}

std::vector<InkTextLine> InkTextLayout::Lines() const {
  std::vector<InkTextLine> lines;
  for (const Paragraph& paragraph : m_paragraphs)
    for (int i = 0; i < paragraph.Layout->lineCount(); ++i) {
      const QTextLine line = paragraph.Layout->lineAt(i);
      const int from = paragraph.Start + line.textStart();
      const qreal below = TopOfLine(paragraph.FirstLine + i + 1);
      lines.push_back(
          {{m_origin.x(), below - kInkBaselineAboveRule}, from, from + line.textLength()});
    }
  return lines;
}

int InkTextLayout::LineOf(int position) const {
  if (m_paragraphs.empty()) return 0;
  const Paragraph& paragraph = ParagraphAt(position);
  const QTextLine line = paragraph.Layout->lineForTextPosition(ShownPosition(paragraph, position));
  return paragraph.FirstLine + (line.isValid() ? line.lineNumber() : 0);
}

int InkTextLayout::LineCount() const {
  return m_paragraphs.empty() ? 0 : m_paragraphs.back().FirstLine + m_paragraphs.back().LineCount();
}

qreal InkTextLayout::TopOfLine(int line) const { return m_origin.y() + line * m_lineHeight; }

QTextLine InkTextLayout::LineAt(int line) const {
  const Paragraph& paragraph = ParagraphOfLine(line);
  return paragraph.Layout->lineAt(line - paragraph.FirstLine);
}

int InkTextLayout::PositionAt(QPointF at) const {
  if (m_paragraphs.empty()) return 0;
  const qreal wanted = std::floor((at.y() - m_origin.y()) / m_lineHeight);
  const int line = static_cast<int>(std::clamp<qreal>(wanted, 0, LineCount() - 1));
  const Paragraph& paragraph = ParagraphOfLine(line);
  const QTextLine shown = LineAt(line);
  if (!shown.isValid()) return paragraph.Start;
  int within = shown.xToCursor(at.x() - m_origin.x());
  // A click behind the end of a broken line stays in that line.
  const bool isLastLine = shown.lineNumber() + 1 == paragraph.Layout->lineCount();
  if (!isLastLine && within >= shown.textStart() + shown.textLength())
    within = paragraph.Layout->previousCursorPosition(within);
  return StoredPosition(paragraph, within);
}

bool InkTextLayout::IsTextAt(QPointF at) const {
  if (!Bounds().contains(at)) return false;
  const QTextLine line = LineAt(static_cast<int>((at.y() - m_origin.y()) / m_lineHeight));
  return line.isValid() && at.x() - m_origin.x() <= line.naturalTextWidth();
}

QRectF InkTextLayout::Caret(int position) const {
  const qreal top = TopOfLine(LineOf(position)) + 3;
  qreal x = m_origin.x();
  if (!m_paragraphs.empty()) {
    const Paragraph& paragraph = ParagraphAt(position);
    const int shown = ShownPosition(paragraph, position);
    const QTextLine line = paragraph.Layout->lineForTextPosition(shown);
    if (line.isValid()) x += line.cursorToX(shown);
  }
  return {x, top, 1, m_lineHeight - 5};
}

std::vector<QRectF> InkTextLayout::Selection(int from, int to) const {
  std::vector<QRectF> rectangles;
  if (m_paragraphs.empty() || from >= to) return rectangles;
  for (int line = LineOf(from); line <= LineOf(to); ++line) {
    const Paragraph& paragraph = ParagraphOfLine(line);
    const QTextLine shown = LineAt(line);
    if (!shown.isValid()) continue;
    const int start = paragraph.Start + shown.textStart();
    const int end = start + shown.textLength();
    const qreal left = shown.cursorToX(std::max(from, start) - paragraph.Start);
    const qreal right = shown.cursorToX(std::min(to, end) - paragraph.Start);
    const qreal lineEnd = to > end ? 4 : 0;  // shows that the line's end is selected
    if (right + lineEnd > left)
      rectangles.emplace_back(m_origin.x() + left, TopOfLine(line), right - left + lineEnd,
                              m_lineHeight);
  }
  return rectangles;
}

int InkTextLayout::End() const { return m_paragraphs.back().Start + m_paragraphs.back().Size(); }

int InkTextLayout::BesideLine(int position, int line) const {
  const QRectF caret = Caret(position);
  return PositionAt({caret.x(), TopOfLine(line) + m_lineHeight / 2});
}

int InkTextLayout::WordEdge(int position, InkCaretMove move) const {
  const Paragraph& paragraph = ParagraphAt(position);
  const int within = position - paragraph.Start;
  const bool left = move == InkCaretMove::Left || move == InkCaretMove::WordLeft;
  const auto mode = move == InkCaretMove::WordLeft || move == InkCaretMove::WordRight
                        ? QTextLayout::SkipWords
                        : QTextLayout::SkipCharacters;
  if (left && within == 0) return std::max(position - 1, 0);
  const Paragraph& last = m_paragraphs.back();
  if (!left && within == paragraph.Size()) return std::min(position + 1, last.Start + last.Size());
  return paragraph.Start + (left ? paragraph.Layout->previousCursorPosition(within, mode)
                                 : paragraph.Layout->nextCursorPosition(within, mode));
}

int InkTextLayout::Moved(int position, InkCaretMove move) const {
  if (m_paragraphs.empty()) return 0;
  const int line = LineOf(position);
  const Paragraph& paragraph = ParagraphAt(position);
  const QTextLine shown = LineAt(line);
  switch (move) {
    case InkCaretMove::Up:
      return line == 0 ? 0 : BesideLine(position, line - 1);
    case InkCaretMove::Down:
      return line + 1 >= LineCount() ? End() : BesideLine(position, line + 1);
    case InkCaretMove::LineStart:
      return paragraph.Start + (shown.isValid() ? shown.textStart() : 0);
    case InkCaretMove::LineEnd:
      return shown.isValid() ? PositionAt({1e6, TopOfLine(line) + 1}) : paragraph.Start;
    case InkCaretMove::TextStart:
      return 0;
    case InkCaretMove::TextEnd:
      return End();
    default:
      return WordEdge(position, move);
  }
}

void InkTextLayout::Paint(QPainter& painter, const QRectF& area) const {
  for (const Paragraph& paragraph : m_paragraphs) {
    const qreal top = TopOfLine(paragraph.FirstLine);
    if (top > area.bottom()) return;
    if (top + paragraph.LineCount() * m_lineHeight < area.top()) continue;
    paragraph.Layout->draw(&painter, {m_origin.x(), top}, {}, area);
  }
}

}  // namespace quill
