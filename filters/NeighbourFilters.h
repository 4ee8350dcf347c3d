#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

// Filters that compute a pixel from the copy's 3 by 3 pixels round it, each channel alone. P is the
// channel's value there, S8 the sum of its eight neighbours; \ truncates toward zero, and what
// leaves 0 to 255 is held at its ends. The picture's edge, one pixel wide, stays as it is.

/// 8 P - S8 + the red, green or blue part of the ColorRef `colour`.
void FilterContour(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t colour,
                   RowRhythm& rhythm);
/// (P + E) \ 2 + 50 with E the difference across the pixel from upper left to lower right, the two
/// corners counting double. Kept: a flat area fades and does not turn mid-gray.
void FilterRelief(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                  RowRhythm& rhythm);
/// The least of the nine values.
void FilterErode(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                 RowRhythm& rhythm);
/// P minus the least of the nine values.
void FilterConnection(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                      RowRhythm& rhythm);

} // namespace kaart
