// The home that a command line names, made ready: its folders stand, and with --demo the sample
// people are in it.
#pragma once

#include <QProcessEnvironment>

#include <optional>

#include "app/Console.h"
#include "app/Places.h"
#include "cli/CommandLine.h"

namespace quill {

Places PlacesOf(const CommandLine& line, const QProcessEnvironment& environment);

// Nothing on failure; the console was told why.
std::optional<Places> PrepareHome(const CommandLine& line, const QProcessEnvironment& environment,
                                  const Console& console);

}  // namespace quill
