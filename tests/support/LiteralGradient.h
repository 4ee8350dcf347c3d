#pragma once

#include "design/surface/Numbers.h"
#include "design/surface/PixelSurface.h"

#include <array>
#include <cmath>

// The colour runs word for word, band over band: the oracle and the yardstick of the fast ones.

inline void literalGradient(kaart::PixelSurface& surface, kaart::ColorRef a, int direction,
                            kaart::ColorRef b) {
    using namespace kaart;
    surface.ScaleMode = ScaleUnit::Twips;
    const ColorRef first = (direction & 2) == 0 ? a : b;
    const ColorRef second = (direction & 2) == 0 ? b : a;
    const double width = surface.ScaleWidth();
    const double height = surface.ScaleHeight();
    double n = width;
    double s = std::nearbyint(n / (15 * 160));
    if ((direction & 4) != 0) {
        n = width + height;
        s = std::nearbyint(n / (15 * 100));
    } else if ((direction & 1) == 0) {
        n = height;
        s = std::nearbyint(n / (15 * 120));
    }
    s = s == 0 ? 1 : s;
    const auto split = [](ColorRef c) {
        return std::array{static_cast<int>(c) & 255,
                          static_cast<int>(std::nearbyint(c / 256.0)) & 255,
                          static_cast<int>(std::nearbyint(c / 65536.0)) & 255};
    };
    const auto from = split(first);
    const auto to = split(second);
    const int drawWidth = surface.DrawWidth;
    if ((direction & 4) != 0) {
        surface.DrawWidth = static_cast<int>(s);
    }
    ColorRef current = second;
    const bool back = (direction & 2) != 0;
    for (double i = back ? n : 0; back ? i >= 0 : i <= n; i += back ? -s : s) {
        if ((direction & 4) != 0) {
            surface.Line(i, 0, 0, i, current);
        } else if ((direction & 1) == 0) {
            surface.Line(0, i, width, i, current, LineMode::FilledBox);
        } else {
            surface.Line(i, 0, i, height, current, LineMode::FilledBox);
        }
        std::array<int, 3> rgb{};
        for (std::size_t c = 0; c < 3; ++c) {
            const float increase = static_cast<float>((to[c] - from[c]) / n);
            rgb[c] = static_cast<int>(std::nearbyint(from[c] + double{increase} * i));
        }
        current = RGB(rgb[0], rgb[1], rgb[2]);
    }
    surface.DrawWidth = drawWidth;
    surface.ScaleMode = ScaleUnit::Pixels;
}

inline void literalCircle(kaart::PixelSurface& surface, kaart::ColorRef a, kaart::ColorRef b,
                          int steps, float cx, float cy) {
    using namespace kaart;
    const auto width = static_cast<float>(surface.ScaleWidth());
    const auto height = static_cast<float>(surface.ScaleHeight());
    cx = cx < 0 ? width / 2 : cx;
    cy = cy < 0 ? height / 2 : cy;
    const float dx = cx > width / 2 ? cx : width - cx;
    const float dy = cy > height / 2 ? cy : height - cy;
    float radius = std::sqrt(dx * dx + dy * dy);
    const float shrink = radius / static_cast<float>(steps);
    const Fill style = surface.FillStyle;
    const ColorRef kept = surface.FillColor;
    surface.FillStyle = Fill::Solid;
    for (int k = 0; k <= steps; ++k) {
        const auto part = [&](int shift) {
            const int low = static_cast<int>(a >> shift & 255U);
            const int high = static_cast<int>(b >> shift & 255U);
            return low + (high - low) * k / steps;
        };
        surface.FillColor = RGB(part(0), part(8), part(16));
        surface.Circle(cx, cy, radius, surface.FillColor);
        radius -= shrink;
    }
    surface.FillStyle = style;
    surface.FillColor = kept;
}
