// A page, or a part of one, in forms that other programs take.
#pragma once

#include <QByteArray>
#include <QImage>

#include "ink/InkNote.h"

namespace quill {

// What the strokes and the text take, with their widths; units. Empty for an empty page.
QRect InkContentArea(const InkNote& note);

// The ink and text, without paper, cut to their area. Sizes are pixels at 100 %.
QByteArray InkSvg(const InkNote& note);

// The same as a picture, so many times as large, its ground transparent. Null for an empty page,
// and where it would take more than 64 MiB.
QImage InkImage(const InkNote& note, double times);

}  // namespace quill
