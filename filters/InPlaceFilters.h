#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

// The filters that work in place: at (x, y) they meet, in the three pixels above and the one to the
// left, values that they have written already, and old ones elsewhere. Each channel by itself. The
// outermost rows and columns stay; a picture narrower or lower than 3 pixels does not change.
// SourceBuf is not read. P is the pixel, S8 the sum of its eight neighbours, \ truncates, and the
// result is held within 0 to 255. Equal to the bit to the loop over pixels that defines them.

/// (P * (p + 24) - 2 * S8) \ (p + 8). With p = -8 nothing changes.
void FilterSharpen(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm);
/// (P * (p + 9) - S8) \ (p + 1). With p = -1 nothing changes.
void FilterEdge(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm);
/// S8 \ 8: the centre does not count. No parameter.
void FilterBlur(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                RowRhythm& rhythm);
/// The sum of the pixel and its four neighbours by sides, \ 5. No parameter.
void FilterSmooth(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                  RowRhythm& rhythm);

} // namespace kaart
