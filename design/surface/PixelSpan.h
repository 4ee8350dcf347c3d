#pragma once

#include "design/surface/ColorRef.h"

#include <QImage>

#include <cstddef>

namespace kaart {

/// The pixels of a picture as kernels see them: row after row from the top, without padding.
/// A span does not own what it points at.
template <typename P>
struct BasicPixelSpan {
    P* data = nullptr;
    int width = 0;  ///< pixels
    int height = 0; ///< pixels

    P* row(int y) const {
        return data + static_cast<std::ptrdiff_t>(y) * static_cast<std::ptrdiff_t>(width);
    }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
};

using PixelSpan = BasicPixelSpan<Pixel>;
using ConstPixelSpan = BasicPixelSpan<const Pixel>;

/// A picture of the one format that all kernels work on (Format_RGB32, no row padding).
/// Transparent parts come out on white, as on paper. A null picture stays null.
QImage toSurfaceFormat(const QImage& picture);

/// The pixels of a picture in surface format, to read or (detached from its copies) to change.
ConstPixelSpan spanOf(const QImage& picture);
PixelSpan spanOf(QImage& picture);

} // namespace kaart
