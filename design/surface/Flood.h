#pragma once

#include "design/surface/PixelSpan.h"

#include <QRect>

namespace kaart {

// Span filling after Heckbert ("A Seed Fill Algorithm", Graphics Gems, 1990): whole runs of a row
// at a time and a list of runs still to look from, no recursion. Both answer the rectangle that
// holds all filled pixels, empty when (x, y) lies outside.

/// Fills the pixels that hang together by sides with (x, y) and have exactly its value.
QRect floodSurface(PixelSpan pixels, int x, int y, Pixel fill);

/// Fills the pixels that hang together by sides with (x, y) and do not have the border's value,
/// those that have the fill's value already included.
QRect floodBorder(PixelSpan pixels, int x, int y, Pixel border, Pixel fill);

} // namespace kaart
