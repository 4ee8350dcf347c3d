#pragma once

#include <cmath>

namespace kaart {

/// Twips are the lengths of windows and printers: 1440 to the inch, taken as 15 to the pixel.
inline constexpr int twipsPerPixel = 15;

/// The nearest whole number, an exact half going to the even neighbour. Values outside the range
/// of int are held at its ends; a NaN gives 0.
inline int roundEven(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double limit = 2147483647.0;
    return static_cast<int>(std::nearbyint(std::fmin(std::fmax(value, -limit), limit)));
}

/// Twips of the design as whole pixels, half to even. The numbers in the code are twip numbers.
constexpr int pixels(int twips) {
    const int doubled = 2 * twips;
    const int floored = (doubled - (doubled < 0 ? 2 * twipsPerPixel - 1 : 0)) / (2 * twipsPerPixel);
    const int rest = doubled - floored * 2 * twipsPerPixel;
    const bool up = rest > twipsPerPixel || (rest == twipsPerPixel && floored % 2 != 0);
    return floored + (up ? 1 : 0);
}

} // namespace kaart
