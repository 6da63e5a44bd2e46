// Ink on a picture: what a mask covers, in a pen's colour.
#pragma once

#include <QImage>

#include "ink/InkMask.h"

namespace quill {

// Puts the covered pixels of the area onto the picture, whose first pixel is the page device pixel
// at the origin. What lies outside of the picture or the mask is left out.
//
// Round ink lies over what is there, a highlighter is multiplied with it; the alpha of the pen's
// colour thins both. The picture is Format_RGB32 with its alpha bytes 255, or
// Format_ARGB32_Premultiplied; other formats stay as they are. Coverage times alpha is rounded to a
// byte, then each channel of the result.
void ComposeInk(QImage& image, const QPoint& origin, const InkMask& mask, const QRect& area,
                const InkPen& pen);

}  // namespace quill
