// Handwriting, made up: lines of small joined letters on a page of the usual width, growing
// downwards, with pressure and times as a pen device gives them.
#pragma once

#include <vector>

#include "ink/InkNote.h"

namespace quill::bench {

// The same seed gives the same strokes. Each is a word's part of as many points, one every 5 to 8
// milliseconds, letters about 12 pixels high on lines 24 pixels apart. Needs one point or more.
std::vector<InkStrokePtr> GenerateStrokes(int count, int pointsEach, quint32 seed);

}  // namespace quill::bench
