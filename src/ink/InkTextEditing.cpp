#include "ink/InkTextEditing.h"

#include <algorithm>

namespace quill {

namespace {

bool LooksLike(const InkTextRun& one, const InkTextRun& other) {
  return one.Flags == other.Flags && one.Size == other.Size && one.Color == other.Color;
}

void AppendRun(std::vector<InkTextRun>& runs, InkTextRun run, int length) {
  if (length <= 0) return;
  run.Length = length;
  if (!runs.empty() && LooksLike(runs.back(), run))
    runs.back().Length += length;
  else
    runs.push_back(run);
}

// The parts of the runs that lie between two positions.
void AppendRuns(std::vector<InkTextRun>& to, const std::vector<InkTextRun>& runs, int from,
                int end) {
  int start = 0;
  for (const InkTextRun& run : runs) {
    const int runEnd = start + run.Length;
    AppendRun(to, run, std::min(runEnd, end) - std::max(start, from));
    start = runEnd;
  }
}

// The run that new text at this position continues.
InkTextRun RunFor(const std::vector<InkTextRun>& runs, int position) {
  int end = 0;
  for (const InkTextRun& run : runs) {
    end += run.Length;
    if (end >= std::max(position, 1)) return run;
  }
  return runs.empty() ? InkTextRun{} : runs.back();
}

QString Fitted(QString with, qsizetype room) {
  if (with.size() <= room) return with;
  with.truncate(std::max<qsizetype>(room, 0));
  if (!with.isEmpty() && with.back().isHighSurrogate()) with.chop(1);
  return with;
}

std::vector<int> MovedBreaks(const InkText& text, int from, int to, int growth) {
  const int first = ParagraphStart(text.Text, from);
  const int last = ParagraphEnd(text.Text, to);
  std::vector<int> breaks;
  for (const int at : text.SoftBreaks) {
    if (at < first) breaks.push_back(at);
    if (at > last) breaks.push_back(at + growth);
  }
  return breaks;
}

}  // namespace

int ParagraphStart(const QString& text, int position) {
  if (position <= 0) return 0;
  return static_cast<int>(text.lastIndexOf(u'\n', position - 1)) + 1;
}

int ParagraphEnd(const QString& text, int position) {
  const qsizetype end = text.indexOf(u'\n', position);
  return static_cast<int>(end < 0 ? text.size() : end);
}

InkText ReplaceInkText(const InkText& text, int from, int to, QString with) {
  with = Fitted(std::move(with), kLongestInkText - (text.Text.size() - (to - from)));
  const int added = static_cast<int>(with.size());
  InkText result = text;
  result.Text.replace(from, to - from, with);
  result.Runs.clear();
  AppendRuns(result.Runs, text.Runs, 0, from);
  AppendRun(result.Runs, RunFor(text.Runs, from), added);
  AppendRuns(result.Runs, text.Runs, to, static_cast<int>(text.Text.size()));
  result.SoftBreaks = MovedBreaks(text, from, to, added - (to - from));
  return result;
}

InkText SliceInkText(const InkText& text, int from, int to) {
  InkText slice = text;
  slice.Text = text.Text.mid(from, to - from);
  slice.Runs.clear();
  AppendRuns(slice.Runs, text.Runs, from, to);
  slice.SoftBreaks.clear();
  return slice;
}

}  // namespace quill
