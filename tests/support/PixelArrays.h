#pragma once

#include "design/surface/PixelSpan.h"

#include <cstddef>
#include <cstdint>

namespace kaart {

/// A picture as the 1-based byte array that the filters are defined on: channel c (1 blue, 2 green,
/// 3 red, 4 the fourth byte) of pixel (x, y), x from 1 to W and y from 1 to H.
template <typename Byte, typename Span>
class BasicPixelArray {
public:
    explicit BasicPixelArray(const Span& span)
        : W(span.width), H(span.height), bytes_(reinterpret_cast<Byte*>(span.data)) {}

    Byte& operator()(int c, int x, int y) const {
        const auto pixel = static_cast<std::ptrdiff_t>(y - 1) * W + (x - 1);
        return bytes_[pixel * 4 + (c - 1)];
    }

    const int W;
    const int H;

private:
    Byte* bytes_;
};

using PixelArray = BasicPixelArray<std::uint8_t, PixelSpan>;
using ConstPixelArray = BasicPixelArray<const std::uint8_t, ConstPixelSpan>;

/// What a channel can hold of a value.
inline std::uint8_t clampByte(int value) {
    return static_cast<std::uint8_t>(value > 255 ? 255 : value < 0 ? 0 : value);
}

} // namespace kaart
