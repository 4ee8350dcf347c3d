#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

/// Draws the frame that a picture holds as rings from outside to inside, with the surface's own pen
/// width. The picture's row y = 1 has the colours: x = 6 is the ring one pixel outside the box from
/// (left, top) to (right, bottom), each pixel further to the right, up to x = 79, lies one further
/// inside. A pixel with red, green or blue of 250 or more, or outside the picture, is no ring. All
/// measures are pixels. Rings that have passed the middle of a small box grow again.
void TekenLijst(PixelSurface& pic, const PixelSurface& frame, int left, int top, int right,
                int bottom);

} // namespace kaart
