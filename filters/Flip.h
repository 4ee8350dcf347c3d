#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

/// Mirrors a surface's present content, left to right or top to bottom. Twice gives it back.
void FlipHorizontal(PixelSurface& surface);
void FlipVertical(PixelSurface& surface);

} // namespace kaart
