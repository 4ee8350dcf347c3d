#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

/// Smoothing that keeps edges (M. Kuwahara, 1976), with the mean absolute deviation in place of the
/// variance: each channel becomes the mean, truncated, of that one of the four 3 x 3 blocks with
/// the pixel in a corner whose values lie nearest to it; of equal ones the first in reading order.
/// A rim of two pixels stays. No parameter.
void FilterAquarel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                   RowRhythm& rhythm);

} // namespace kaart
