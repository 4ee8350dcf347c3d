#pragma once

#include "filters/FilterRoutine.h"

namespace kaart {

/// Blocks of s x s pixels from the upper left corner become their mean, each channel truncated by
/// itself; at the right and the bottom a block averages what there is. With s below 1 nothing
/// changes.
void FilterPixelize(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s,
                    RowRhythm& rhythm);

} // namespace kaart
