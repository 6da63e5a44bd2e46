// What is measured of the list's window: requests of pen and keys until their page is painted.
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "MeasureTable.h"
#include "app/Places.h"

namespace quill::bench {

// Starts the whole program on the home, so there must be no application object yet, nor one after
// it. Nothing when it failed, the problem says where.
std::optional<std::vector<Measure>> MeasurePages(const Places& places, QString& problem);

}  // namespace quill::bench
