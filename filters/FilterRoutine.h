#pragma once

#include "design/surface/PixelSpan.h"
#include "design/surface/RowRhythm.h"

#include <cstdint>

namespace kaart {

/// A filter on the array path. Both pictures have the same size and do not share pixels; at the
/// call PixelBuf is a copy of SourceBuf, at the end it is the result. A filter that works from the
/// copy reads SourceBuf only and writes every pixel of PixelBuf, so for its own sake PixelBuf needs
/// no content; one that works in place reads and writes PixelBuf only and so meets, above and to
/// the left, pixels that it has changed already. The fourth byte of every pixel stays. Pictures of
/// any size are allowed, an empty one too. `rhythm` is called once for each row, from the top.
using FilterRoutine = void (*)(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter,
                               RowRhythm& rhythm);

} // namespace kaart
