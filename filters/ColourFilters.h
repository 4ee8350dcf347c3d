#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

// Filters that change a pixel by looking at that pixel alone; all of them work from the copy. In
// the formulas c is a channel, m = (blue + green + red) \ 3 the pixel's mean; \ truncates toward
// zero, and what leaves 0 to 255 is held at its ends.

/// 255 - c.
void FilterNegative(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                    RowRhythm& rhythm);
/// m: the plain mean, not a weighted luminance.
void FilterGrayscale(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                     RowRhythm& rhythm);
/// c * (p + 100) / 100 with the factor as a 32-bit float, rounded half to even; p in per cent.
void FilterLight(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm);
/// c + (c - m) * s / 100 with the factor as a 32-bit float, rounded half to even. Kept: the base is
/// c, not m, so 140 widens the distance from gray by 2.4.
void FilterSaturation(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s,
                      RowRhythm& rhythm);
/// Exchanges channels: 1 to 5 give, as new red, green and blue, BRG, GBR, RBG, BGR and GRB of the
/// old ones. Any other `order` changes nothing.
void FilterSwap(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t order,
                RowRhythm& rhythm);
/// Stretches by (p + 100) / 100 (a 32-bit float, |p| up to 1,000) round the picture's mean gray. A
/// channel that leaves the range gives half of its excess to the other two, so that the hue is kept
/// better than by clipping.
void FilterContrast(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p,
                    RowRhythm& rhythm);

/// The raster operation (NOT source) OR target with the picture itself as its source, one pixel to
/// the lower right: white but for the edges, a colouring page. Row 0 and column 0 stay. `target`
/// must not be `source`.
void FilterInkleuren(PixelSpan target, ConstPixelSpan source);

// The passes that run on the surface itself, row by row: `target` may be `source`.

/// 2 c.
void FilterDodge(PixelSpan target, ConstPixelSpan source);
/// 0 from 0, 254 from 1, 255 from 2 to 127; c / (255 - c), rounded half to even, from 128; 255
/// from 255.
void FilterModern(PixelSpan target, ConstPixelSpan source);
/// Tints a gray picture: red stays, green becomes |green - 40|, but 0 when that is above red, blue
/// becomes |blue - 80|, but 0 when that is above the new green. Kept: the darkest grays turn
/// reddish, not brown.
void FilterSepia(PixelSpan target, ConstPixelSpan source);
/// White where the gray value (blue + green + red) / 3, rounded, is at least `threshold`, black
/// elsewhere. 0 and less make everything white, above 255 everything black.
void FilterZwartWit(PixelSpan target, ConstPixelSpan source, double threshold);

/// The mean of all pixels' m, truncated; 0 for an empty picture.
int meanGray(ConstPixelSpan picture);

} // namespace kaart
