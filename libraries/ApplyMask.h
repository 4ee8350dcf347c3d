#pragma once

#include "design/surface/PixelSurface.h"
#include "design/surface/RowRhythm.h"

namespace kaart {

/// Turns white (255, 255, 255) every pixel of a design that lies under a near-white pixel of the
/// mask: one whose red, green and blue are all above 250. The others stay as they are. On a design
/// wider than high, mask pixel (x, y) lies on (x, y); on any other on (y, 639 - x), a quarter turn
/// counter-clockwise for an upright design of 640 rows. A mask may have any size; what falls
/// outside the design is left out. `rhythm` is called after each row of the mask.
void ApplyMask(PixelSurface& pic, const QImage& mask, RowRhythm& rhythm);

} // namespace kaart
