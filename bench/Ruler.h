// Times of many runs, kept in rows. Each run is measured in turn with the unit that its row is
// given in, so that a busy moment of the machine meets both; the medians are what counts.
#pragma once

#include <QElapsedTimer>
#include <QString>

#include <array>
#include <functional>
#include <vector>

#include "MeasureTable.h"

namespace quill::bench {

// What a time is given in besides itself: signs P, R, C and V in the table.
enum class Unit { None, Page, Rows, Commit, View };
inline constexpr std::size_t kUnitCount = 5;

// Enough runs for a median, and no more than fit into some seconds.
struct RunLimits {
  int Least = 5;
  int Most = 200;
  qint64 Milliseconds = 8000;  // no further run is begun after these
};

class Rounds {
 public:
  explicit Rounds(const RunLimits& limits) : m_limits(limits) { m_sinceFirst.start(); }
  bool Another();

 private:
  RunLimits m_limits;
  QElapsedTimer m_sinceFirst;
  int m_begun = 0;
};

class Ruler {
 public:
  using Work = std::function<bool()>;  // false when it went wrong

  explicit Ruler(const RunLimits& limits = {}) : m_limits(limits) {}

  // For a loop over the runs of some rows.
  Rounds NewRounds() const { return Rounds(m_limits); }

  // Prepare runs before the unit's work and is not measured. The unit's times are a row, too.
  void SetUnit(Unit unit, const QString& what, Work prepare, Work work);
  // Returns the row's number.
  int AddRow(const QString& what, QStringView aim, Unit unit);

  // One run, its unit before it. After a failure nothing runs any more.
  void Run(int row, const Work& work);
  // The same for work that does so many alike things in a row.
  void RunSeveral(int row, int count, const Work& work);
  // Work that is not measured.
  void Do(const QString& what, const Work& work);

  // What failed first; empty while nothing has.
  const QString& Failure() const { return m_failure; }
  std::vector<Measure> Measures() const;

 private:
  struct Row {
    QString What;
    QString Aim;
    Unit In = Unit::None;
    std::vector<double> Times = {};  // microseconds
  };
  struct UnitWork {
    int Row = 0;
    Work Prepare = {};
    Work Measured = {};
  };

  void Time(int row, int count, const Work& work);
  QString Value(const Row& row) const;

  RunLimits m_limits;
  std::vector<Row> m_rows;
  std::array<UnitWork, kUnitCount> m_units;
  QString m_failure;
};

}  // namespace quill::bench
