#pragma once

#include <algorithm>
#include <cstdint>

namespace kaart {

/// A colour as one 32-bit value 0x00BBGGRR: red in the lowest byte. The top byte is 0.
using ColorRef = std::uint32_t;

/// What GetPixel and Point answer outside the surface.
inline constexpr ColorRef noColor = 0xFFFFFFFFU;

/// Builds a colour. Each part is held within 0 to 255.
constexpr ColorRef RGB(int red, int green, int blue) {
    const auto byte = [](int part) { return static_cast<ColorRef>(std::clamp(part, 0, 255)); };
    return byte(red) | byte(green) << 8 | byte(blue) << 16;
}

constexpr int redOf(ColorRef colour) {
    return static_cast<int>(colour & 0xFFU);
}
constexpr int greenOf(ColorRef colour) {
    return static_cast<int>(colour >> 8 & 0xFFU);
}
constexpr int blueOf(ColorRef colour) {
    return static_cast<int>(colour >> 16 & 0xFFU);
}

/// A surface's pixel, in memory blue, green, red, 255.
using Pixel = std::uint32_t;

/// Exchanges the red and blue bytes; serves both directions of the conversion.
constexpr std::uint32_t swapRedBlue(std::uint32_t value) {
    return (value & 0x0000FF00U) | (value & 0xFFU) << 16 | (value >> 16 & 0xFFU);
}

constexpr Pixel toPixel(ColorRef colour) {
    return swapRedBlue(colour) | 0xFF000000U;
}
constexpr ColorRef toColorRef(Pixel pixel) {
    return swapRedBlue(pixel);
}

inline constexpr ColorRef black = RGB(0, 0, 0);
inline constexpr ColorRef white = RGB(255, 255, 255);

} // namespace kaart
