#pragma once

#include "design/surface/GraphicsCalls.h"

#include <array>
#include <cmath>
#include <vector>

/// The bilinear doubling word for word, pixel by pixel: the oracle and the yardstick of the kernel.
/// `doubled` has twice the size of `source`.
inline void literalOptimise(const kaart::PixelSurface& source, kaart::PixelSurface& doubled) {
    const int width = source.bounds().width();
    const int height = source.bounds().height();
    const float xs = static_cast<float>(width - 1) / static_cast<float>(2 * width);
    const float ys = static_cast<float>(height - 1) / static_cast<float>(2 * height);
    std::vector<kaart::ColorRef> pixels; // to (width, height), so the last ones are read outside
    const auto stride = static_cast<std::size_t>(width) + 1;
    pixels.reserve(stride * (static_cast<std::size_t>(height) + 1));
    for (int i = 0; i < (width + 1) * (height + 1); ++i) {
        pixels.push_back(GetPixel(source, i % (width + 1), i / (width + 1)));
    }
    const auto blend = [](double part, double from, double to) {
        return std::nearbyint((1 - part) * from + part * to);
    };
    for (int y = 0; y < 2 * height; ++y) {
        const double fy = static_cast<double>(ys) * y;
        const int iy = static_cast<int>(fy);
        for (int x = 0; x < 2 * width; ++x) {
            const double fx = static_cast<double>(xs) * x;
            const int ix = static_cast<int>(fx);
            const kaart::ColorRef* top =
                &pixels[static_cast<std::size_t>(iy) * stride + static_cast<std::size_t>(ix)];
            std::array<int, 3> rgb{};
            for (unsigned channel = 0; channel < 3; ++channel) {
                const auto byte = [&](int offset) {
                    return static_cast<double>(top[offset] >> (8 * channel) & 0xFFU);
                };
                const double left = blend(fy - iy, byte(0), byte(width + 1));
                const double right = blend(fy - iy, byte(1), byte(width + 2));
                rgb[channel] = static_cast<int>(blend(fx - ix, left, right));
            }
            SetPixel(doubled, x, y, kaart::RGB(rgb[0], rgb[1], rgb[2]));
        }
    }
}
