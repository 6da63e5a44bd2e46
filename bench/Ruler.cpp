#include "Ruler.h"

#include <utility>

namespace quill::bench {

namespace {

constexpr std::array<QStringView, kUnitCount> kUnitSigns = {u"", u"P", u"R", u"C", u"V"};

std::size_t IndexOf(Unit unit) { return static_cast<std::size_t>(unit); }

}  // namespace

void Ruler::SetUnit(Unit unit, const QString& what, Work prepare, Work work) {
  const int row = AddRow(what, {}, Unit::None);
  m_units[IndexOf(unit)] = {row, std::move(prepare), std::move(work)};
}

int Ruler::AddRow(const QString& what, QStringView aim, Unit unit) {
  m_rows.push_back({.What = what, .Aim = aim.toString(), .In = unit});
  return static_cast<int>(m_rows.size()) - 1;
}

void Ruler::Run(int row, const Work& work) { RunSeveral(row, 1, work); }

void Ruler::RunSeveral(int row, int count, const Work& work) {
  const Unit in = m_rows[static_cast<std::size_t>(row)].In;
  if (in != Unit::None) {
    const UnitWork& unit = m_units[IndexOf(in)];
    Do(m_rows[static_cast<std::size_t>(unit.Row)].What, unit.Prepare);
    Time(unit.Row, 1, unit.Measured);
  }
  Time(row, count, work);
}

void Ruler::Do(const QString& what, const Work& work) {
  if (m_failure.isEmpty() && !work()) m_failure = what;
}

void Ruler::Time(int row, int count, const Work& work) {
  Row& kept = m_rows[static_cast<std::size_t>(row)];
  const double time = MicrosecondsOf([&] { Do(kept.What, work); });
  kept.Times.push_back(time / count);
}

std::vector<Measure> Ruler::Measures() const {
  std::vector<Measure> measures;
  for (const Row& row : m_rows) measures.push_back({row.What, row.Aim, Value(row)});
  return measures;
}

QString Ruler::Value(const Row& row) const {
  const double time = Median(row.Times);
  if (row.In == Unit::None) return TimeText(time);
  const UnitWork& unit = m_units[IndexOf(row.In)];
  const double ratio = time / Median(m_rows[static_cast<std::size_t>(unit.Row)].Times);
  return QStringLiteral("%1 %2, %3")
      .arg(NumberText(ratio), kUnitSigns[IndexOf(row.In)], TimeText(time));
}

bool Rounds::Another() {
  const bool isTime = m_sinceFirst.elapsed() < m_limits.Milliseconds;
  if (m_begun >= m_limits.Most || (m_begun >= m_limits.Least && !isTime)) return false;
  ++m_begun;
  return true;
}

}  // namespace quill::bench
