#include "MeasureTable.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace quill::bench {

namespace {

QString TableLine(const QStringList& cells) {
  return QStringLiteral("| %1 |\n").arg(cells.join(QStringLiteral(" | ")));
}

}  // namespace

double Median(std::vector<double> numbers) {
  if (numbers.empty()) return 0;
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return *middle;
}

QString NumberText(double number) {
  if (number < 0.995) return QString::number(number, 'f', 2);
  return QString::number(number, 'f', number < 9.95 ? 1 : 0);
}

QString TimeText(double microseconds) {
  if (microseconds < 999.5) return NumberText(microseconds) + QStringLiteral(" µs");
  return NumberText(microseconds / 1000) + QStringLiteral(" ms");
}

QByteArray PackMeasures(const std::vector<Measure>& measures) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  for (const Measure& measure : measures) stream << measure.What << measure.Aim << measure.Value;
  return bytes;
}

std::vector<Measure> UnpackMeasures(const QByteArray& bytes) {
  std::vector<Measure> measures;
  QDataStream stream(bytes);
  while (!stream.atEnd()) {
    Measure measure;
    stream >> measure.What >> measure.Aim >> measure.Value;
    measures.push_back(std::move(measure));
  }
  return measures;
}

QString MarkdownTable(const std::vector<MeasureColumn>& columns) {
  if (columns.empty()) return {};
  QStringList headings{QStringLiteral("what"), QStringLiteral("aim")};
  for (const MeasureColumn& column : columns) headings.append(column.Heading);
  QString table = TableLine(headings);
  table += TableLine(QStringList(headings.size(), QStringLiteral("---")));
  for (std::size_t row = 0; row < columns.front().Measures.size(); ++row) {
    const Measure& first = columns.front().Measures[row];
    QStringList cells{first.What, first.Aim};
    for (const MeasureColumn& column : columns) cells.append(column.Measures.at(row).Value);
    table += TableLine(cells);
  }
  return table;
}

}  // namespace quill::bench
