#pragma once

#include "design/surface/PixelSurface.h"
#include "design/surface/RowRhythm.h"

#include <cstdint>

namespace kaart {

/// Fades a picture toward white, column by column from the left. `p`, 0 to 100, is the share of it
/// that stays: each channel c becomes (c p + (100 - p) 255) / 100, rounded half to even. After each
/// column `rhythm` may do anything, even change the surface or its size: each column is done on
/// what is there by then.
void FadePicture(PixelSurface& pic, int p, RowRhythm& rhythm);

/// Blends a bevelled frame of `width` + 1 pixels into the edges of a picture. Left and top take
/// white if `inout` is 1, otherwise black, right and bottom the other one. Each channel v becomes
/// v - v L + C L with L = light / 255, rounded half to even. The sides come first, from corner to
/// corner; top and bottom start one pixel in from the corners. On a small picture the edges overlap
/// and blend twice; pixels outside are left out.
void BevelPicture(PixelSurface& surface, std::int32_t width, int inout, double light);

} // namespace kaart
