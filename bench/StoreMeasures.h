// All that is measured of one store of made-up contacts.
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "MeasureTable.h"
#include "Ruler.h"

namespace quill::bench {

// A store file of a thousand contacts or more. Memory is this process's: it should not have opened
// a store before. Nothing when the store failed or gave a wrong answer; the problem says where.
std::optional<std::vector<Measure>> MeasureStore(const QString& storeFile, const RunLimits& limits,
                                                 QString& problem);

}  // namespace quill::bench
