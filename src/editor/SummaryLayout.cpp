#include "editor/SummaryLayout.h"

#include <algorithm>

namespace quill {

namespace {

constexpr int kLineHeight = 16;
constexpr int kMargin = 5;  // above and below the lines, and to both sides
constexpr int kLabelWidth = 40;
constexpr int kValueLeft = 50;
constexpr int kValueWidth = kCardWidth - kMargin - kValueLeft;

constexpr int kCardLeft = 20;  // on the screen
constexpr int kHighestTop = 50;
constexpr int kLowestBottom = 295;
constexpr int kFirstAnchorAbove = 120;  // in the list
constexpr int kDistance = 5;            // from the anchor

int TextTop(int line) { return line * kLineHeight + kMargin; }

PaintedItem ValueLine(int line, const QString& text) {
  return {.Rectangle = {kValueLeft, TextTop(line), kValueWidth, kLineHeight},
          .Text = text,
          .Color = kCardColor};
}

PaintedRow LayOutGround(int height) {
  const QRect area(0, 0, kCardWidth, height);
  return {.Rectangle = area,
          .Role = PaintedRole::Separator,
          .Items = {{.Rectangle = area, .Fill = kCardBackground}}};
}

PaintedRow LayOutNothing() {
  const QRect area(kMargin, kMargin, kCardWidth - 2 * kMargin, kLineHeight);
  return {.Rectangle = area,
          .SpokenName = kNoContactInformation.toString(),
          .Role = PaintedRole::Text,
          .Items = {{.Rectangle = area,
                     .Text = kNoContactInformation.toString(),
                     .Alignment = TextAlign::Centre,
                     .Color = kCardColor}}};
}

// As many lines as there is room for; the last one ends with dots where there is more.
QStringList FitLines(const SummaryLine& line, const TextWidth& width) {
  if (line.Height == 1) return {ElideText(OnOneLine(line.Text), kValueWidth, width)};
  QStringList lines = WrapLines(line.Text, kValueWidth, width);
  if (lines.size() <= line.Height) return lines;
  const QString rest = lines.mid(line.Height - 1).join(u' ');
  lines = lines.mid(0, line.Height - 1);
  return lines << ElideText(rest, kValueWidth, width);
}

PaintedRow LayOutLine(const SummaryLine& line, int first, const TextWidth& width) {
  const QString label = line.Label.toString();
  PaintedRow row{
      .Rectangle = {kMargin, TextTop(first), kCardWidth - 2 * kMargin, line.Height * kLineHeight},
      .SpokenName = label + u' ' + line.Text,
      .Role = PaintedRole::Text};
  row.Items.push_back({.Rectangle = {kMargin, TextTop(first), kLabelWidth, kLineHeight},
                       .Text = label,
                       .Alignment = TextAlign::Right,
                       .Color = kCardColor});
  const QStringList texts = FitLines(line, width);
  for (int i = 0; i < texts.size(); ++i) row.Items.push_back(ValueLine(first + i, texts[i]));
  return row;
}

}  // namespace

int CardLineCount(const std::vector<SummaryLine>& lines) {
  int count = 0;
  for (const SummaryLine& line : lines) count += line.Height;
  return count;
}

int CardHeight(int lineCount) { return std::max(lineCount, 1) * kLineHeight + 2 * kMargin; }

QRect PlaceCard(int lineCount, int anchorY, int listTop) {
  const int height = CardHeight(lineCount);
  const int y = anchorY + listTop;
  const int top = anchorY >= kFirstAnchorAbove ? std::max(y - kDistance - height, kHighestTop)
                                               : std::min(y + kDistance, kLowestBottom - height);
  return {kCardLeft, top, kCardWidth, height};
}

std::vector<PaintedRow> LayOutCard(const std::vector<SummaryLine>& lines, const TextWidth& width) {
  std::vector<PaintedRow> rows{LayOutGround(CardHeight(CardLineCount(lines)))};
  int first = 0;
  for (const SummaryLine& line : lines) {
    rows.push_back(LayOutLine(line, first, width));
    first += line.Height;
  }
  if (lines.empty()) rows.push_back(LayOutNothing());
  return rows;
}

}  // namespace quill
