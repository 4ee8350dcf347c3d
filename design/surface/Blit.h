#pragma once

#include "design/surface/PixelSurface.h"

#include <QImage>

namespace kaart {

/// One axis of a copy with stretching: `size` pixels from `start`, a negative size backwards.
struct BlitAxis {
    int start;
    int size;
};

/// A rectangle whose sizes may be negative: x + W - 1 with width -W covers exactly the pixels of x
/// with width W, mirrored.
struct BlitRect {
    BlitAxis x;
    BlitAxis y;
};

/// Which source pixels serve which target pixel on one axis, after mirroring and clipping.
struct AxisMap {
    /// Source pixels [first, last) of one target pixel.
    struct Piece {
        int first;
        int last;
    };
    int start = 0; ///< the first target pixel that is served
    std::vector<Piece> pieces;

    /// Enlarging serves target i of n by source ceil((2i + 1)k / 2n) - 1 of k, reducing by all
    /// source pixels whose centre the target pixel covers. What lies outside of the target or of
    /// the source is left out; an empty size leaves out all.
    static AxisMap make(BlitAxis target, int targetLimit, BlitAxis source, int sourceLimit);
};

/// Copies a piece of a picture in surface format. Source and target must not share pixels.
/// Returns the rectangle of the target that was written, possibly empty.
QRect blit(PixelSpan target, const BlitRect& to, ConstPixelSpan source, const BlitRect& from,
           RasterOp rop);

} // namespace kaart
