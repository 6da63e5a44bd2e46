// Tables over stores of several sizes: a column for each size, measured in a process of its own.
#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

#include "MeasureTable.h"
#include "app/Places.h"

namespace quill::bench {

// Measures the store of a home; nothing when that failed, the problem says why.
using MeasureHome =
    std::function<std::optional<std::vector<Measure>>(const Places& places, QString& problem)>;

// A whole program: "PROGRAM [--in DIR] [SIZE...]" prints the table in Markdown. Homes of the stores
// are DIR/SIZE, made where they are missing and left there; without DIR they are temporary. Returns
// the exit code.
int PrintSizedTable(const QString& program, int argc, char** argv, const MeasureHome& measure);

}  // namespace quill::bench
