#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

// Both draw from the one generator of Random.h, in reading order, and do not seed it. Arithmetic is
// in 32-bit floats, rounding to the nearest whole number, a half to even.

/// Each pixel in turn is overwritten, in place, with the one at (x + dx, y + dy), dx and dy drawn
/// in this order as Rnd * p - h, h = p / 2 rounded. An offset that leads out of the picture becomes
/// 0.
void FilterDefuse(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm);

/// Adds Rnd * (2 * n + 1) - n, rounded, to each channel, blue first, and holds it within 0 to 255.
void FilterNoise(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t n, RowRhythm& rhythm);

} // namespace kaart
