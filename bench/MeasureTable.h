// Measured times as rows of a table: a row for what was measured, a column for each store.
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <vector>

namespace quill::bench {

// How long the work takes, in microseconds.
template <typename Work>
double MicrosecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
      .count();
}

// The middle one of some numbers, 0 of none.
double Median(std::vector<double> numbers);

// "0.04", "1.2", "37": two digits that count.
QString NumberText(double number);
// 950 ns is "0.95 µs", 12,345 µs "12 ms".
QString TimeText(double microseconds);

struct Measure {
  QString What;
  QString Aim;  // empty when there is none
  QString Value;

  bool operator==(const Measure&) const = default;
};

// From one process to another.
QByteArray PackMeasures(const std::vector<Measure>& measures);
std::vector<Measure> UnpackMeasures(const QByteArray& bytes);

struct MeasureColumn {
  QString Heading;
  std::vector<Measure> Measures;
};

// As Markdown, a line feed behind each line. The first column says which rows there are and what
// their aims are; the others have the same rows.
QString MarkdownTable(const std::vector<MeasureColumn>& columns);

}  // namespace quill::bench
