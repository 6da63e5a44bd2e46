#include "StoreMeasures.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>

#include "ListFilters.h"
#include "ProcessMemory.h"
#include "ReadMeasures.h"
#include "WriteMeasures.h"
#include "app/StoreOpening.h"
#include "store/pim/PimStore.h"

namespace quill::bench {

namespace {

constexpr double kMegabyte = 1024.0 * 1024.0;

QString MegabytesText(double megabytes) { return NumberText(megabytes) + QStringLiteral(" MB"); }

// No other connection is open, so that each start finds the file as a program's start does; the
// system still has it in memory.
void MeasureColdOpening(const QString& storeFile, Ruler& ruler) {
  const int row = ruler.AddRow(QStringLiteral("open, count, first page"), u"16 ms", Unit::None);
  for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
    PimStore store(storeFile);
    std::unique_ptr<StoreOpening> opening;
    ruler.Run(row, [&] {
      opening = std::make_unique<StoreOpening>(store);
      return opening->Succeeded() && BuildList(*store.Contacts(), {});
    });
  }
}

}  // namespace

std::optional<std::vector<Measure>> MeasureStore(const QString& storeFile, const RunLimits& limits,
                                                 QString& problem) {
  const double fileSize = static_cast<double>(QFileInfo(storeFile).size()) / kMegabyte;
  const double before = ResidentMegabytes();
  Ruler ruler(limits);
  MeasureColdOpening(storeFile, ruler);
  PimStore store(storeFile);
  const StoreOpening opening(store);
  problem = opening.Problem();
  if (!opening.Succeeded()) return std::nullopt;
  MeasureReading(*store.Contacts(), ruler);
  MeasureWriting(store, QFileInfo(storeFile).path(), ruler);
  if (!ruler.Failure().isEmpty()) {
    problem = QStringLiteral("%1: failed. %2").arg(ruler.Failure(), store.LastError());
    return std::nullopt;
  }
  std::vector<Measure> measures = ruler.Measures();
  measures.push_back({QStringLiteral("memory grown by"), QStringLiteral("16 MB"),
                      MegabytesText(std::max(ResidentMegabytes() - before, 0.0))});
  measures.push_back({QStringLiteral("file, before writing"), {}, MegabytesText(fileSize)});
  return measures;
}

}  // namespace quill::bench
