#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

inline constexpr int rulerThickness = 10; ///< pixels
inline constexpr ColorRef rulerColor = RGB(255, 255, 215);

/// Draws both rulers anew for a canvas of so many pixels: a tick at each 5, a longer one at each
/// 20, a red one at each 40, from 10 pixels of either end, and a blue mark in the middle. The
/// surfaces take the canvas's length and the ruler's thickness.
void TekenMaat(PixelSurface& topMaat, PixelSurface& leftMaat, const QSize& canvas);

} // namespace kaart
