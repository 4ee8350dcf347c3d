#pragma once

#include "design/surface/PixelSpan.h"

namespace kaart {

// Copies that mirror a half of a picture onto the other, one line after the other from the given
// one on. `target` may be `source` itself; otherwise it becomes the whole picture.

/// Mirrors the left half of the rows [first, last) to the right.
void CopyLeftSide(PixelSpan target, ConstPixelSpan source, int first, int last);
/// Mirrors the rows [first, last) of the upper half to the bottom.
void CopyTopSide(PixelSpan target, ConstPixelSpan source, int first, int last);
/// Mirrors the left half of the rows [first, last) of the upper half to the right, and what comes
/// of it to the bottom: all four quarters come from the upper left one.
void CopyCorners(PixelSpan target, ConstPixelSpan source, int first, int last);

/// The rows of the upper half, the middle one of an odd number included.
constexpr int halfOf(int size) {
    return (size + 1) / 2;
}

} // namespace kaart
