// Notes as a person might have written them, for the sample people.
#pragma once

#include <QString>

#include "ink/InkNote.h"

namespace quill {

enum class SampleSketch { Underline, Circle, Arrow };

// A typed line with a sketch drawn by pen.
InkNote MakeSampleNote(const QString& text, SampleSketch sketch);

}  // namespace quill
