#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

/// Pure black and white by error diffusion (P. Stucki, 1981), every row from left to right. The
/// threshold is the mean of the picture's gray values (B + G + R) \ 3. The error waiting for a
/// pixel is scaled by 10 / p as it is taken up, truncated; the twelve shares of an error are
/// truncated one by one as they are spread. With p = 0 no error is taken up. The mean counts as the
/// first 10 percent.
void FilterDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm);

} // namespace kaart
