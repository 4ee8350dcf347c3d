#pragma once

#include "design/surface/PixelSpan.h"
#include "design/surface/RowRhythm.h"

namespace kaart {

/// Bilinear doubling of a picture. `target` has twice the source's width and height, in pixels, and
/// may not overlap it; an empty source does nothing. Target pixel (x, y) lies at (fx, fy) of the
/// source with fx = x * xs and xs = (width - 1) / (2 * width) as a 32-bit float, so that the right
/// neighbour always lies within the picture; likewise fy. Each channel is blended down first and
/// rounded to a whole number, then across and rounded again, halves to even; the arithmetic is
/// exact in double from the two floats on.
void OptimisePicture(ConstPixelSpan source, PixelSpan target, RowRhythm& rhythm);

} // namespace kaart
