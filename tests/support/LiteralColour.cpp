#include "tests/support/LiteralFilters.h"

#include "tests/support/PixelArrays.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace kaart {

namespace {

using Colour = std::array<int, 3>; // blue, green, red

/// `change(colour)` for every pixel of the copy.
template <typename Change>
void eachPixel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, const Change& change) {
    const PixelArray P(PixelBuf);
    const ConstPixelArray S(SourceBuf);
    for (int y = 1; y <= S.H; ++y) {
        for (int x = 1; x <= S.W; ++x) {
            Colour colour = {S(1, x, y), S(2, x, y), S(3, x, y)};
            change(colour);
            P(1, x, y) = clampByte(colour[0]);
            P(2, x, y) = clampByte(colour[1]);
            P(3, x, y) = clampByte(colour[2]);
        }
    }
}

int rounded(double value) {
    return static_cast<int>(std::nearbyint(value));
}

int meanOf(const Colour& colour) {
    return (colour[0] + colour[1] + colour[2]) / 3;
}

bool isOutside(int v) {
    return v < 0 || v > 255;
}

void giveExcess(int& v, int& other, int& another) {
    const int excess = v < 0 ? v : v > 255 ? v - 255 : 0;
    v -= excess;
    other += excess / 2;
    another += excess / 2;
}

void spread(int& a, int& b, int& c) {
    while (isOutside(a) || isOutside(b) || isOutside(c)) {
        if (a <= 0 && b <= 0 && c <= 0) {
            a = b = c = 0;
        } else if (a >= 255 && b >= 255 && c >= 255) {
            a = b = c = 255;
        } else {
            giveExcess(a, b, c);
            giveExcess(b, a, c);
            giveExcess(c, b, a);
        }
    }
}

} // namespace

void literalNegative(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachPixel(PixelBuf, SourceBuf, [](Colour& colour) {
        for (int& c : colour) {
            c = 255 - c;
        }
    });
}

void literalGrayscale(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachPixel(PixelBuf, SourceBuf, [](Colour& colour) { colour.fill(meanOf(colour)); });
}

void literalLight(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p) {
    const auto f = static_cast<float>((p + 100) / 100.0);
    std::array<int, 256> GrayTable{};
    for (int i = 0; i < 256; ++i) {
        GrayTable[static_cast<std::size_t>(i)] = clampByte(rounded(static_cast<double>(f) * i));
    }
    eachPixel(PixelBuf, SourceBuf, [&](Colour& colour) {
        for (int& c : colour) {
            c = GrayTable[static_cast<std::size_t>(c)];
        }
    });
}

void literalSaturation(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s) {
    const auto f = static_cast<float>(s / 100.0);
    eachPixel(PixelBuf, SourceBuf, [f](Colour& colour) {
        const int m = meanOf(colour);
        for (int& c : colour) {
            c = rounded(static_cast<double>(f) * (c - m) + c);
        }
    });
}

void literalSwap(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t order) {
    eachPixel(PixelBuf, SourceBuf, [order](Colour& colour) {
        const auto [b, g, r] = colour;
        const std::array<Colour, 6> orders = {
            {{b, g, r}, {g, r, b}, {r, b, g}, {g, b, r}, {r, g, b}, {b, r, g}}};
        colour = orders[order >= 1 && order <= 5 ? static_cast<std::size_t>(order) : 0];
    });
}

void literalContrast(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p) {
    const ConstPixelArray S(SourceBuf);
    std::int64_t sum = 0;
    for (int y = 1; y <= S.H; ++y) {
        for (int x = 1; x <= S.W; ++x) {
            sum += (S(1, x, y) + S(2, x, y) + S(3, x, y)) / 3;
        }
    }
    const auto m = static_cast<int>(sum / (static_cast<std::int64_t>(S.W) * S.H));
    const auto f = static_cast<float>((p + 100) / 100.0);
    std::array<int, 256> GrayTable{};
    for (int i = 0; i < 256; ++i) {
        GrayTable[static_cast<std::size_t>(i)] = rounded(static_cast<double>(f) * (i - m) + m);
    }
    eachPixel(PixelBuf, SourceBuf, [&](Colour& colour) {
        for (int& c : colour) {
            c = GrayTable[static_cast<std::size_t>(c)];
        }
        spread(colour[0], colour[1], colour[2]);
    });
}

void literalSepia(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachPixel(PixelBuf, SourceBuf, [](Colour& colour) {
        auto& [b, g, r] = colour;
        g = std::abs(g - 40);
        if (g > r) {
            g = 0;
        }
        b = std::abs(b - 80);
        if (b > g) {
            b = 0;
        }
    });
}

void literalDodge(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachPixel(PixelBuf, SourceBuf, [](Colour& colour) {
        for (int& c : colour) {
            c *= 2;
        }
    });
}

void literalModern(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachPixel(PixelBuf, SourceBuf, [](Colour& colour) {
        for (int& v : colour) {
            if (v <= 127) {
                v = (255 - v) * v;
            } else if (v < 255) {
                v = rounded(v / (255.0 - v));
            }
        }
    });
}

} // namespace kaart
