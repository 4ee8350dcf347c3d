#include "tests/support/LiteralInPlace.h"

#include "tests/support/PixelArrays.h"

#include <array>

namespace kaart {

namespace {

int S8(const PixelArray& P, int c, int x, int y) {
    return P(c, x - 1, y - 1) + P(c, x, y - 1) + P(c, x + 1, y - 1) + P(c, x - 1, y) +
           P(c, x + 1, y) + P(c, x - 1, y + 1) + P(c, x, y + 1) + P(c, x + 1, y + 1);
}

} // namespace

void literalSharpen(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p) {
    const PixelArray P(PixelBuf);
    for (int y = 2; y <= P.H - 1; ++y) {
        for (int x = 2; x <= P.W - 1; ++x) {
            std::array<std::uint8_t, 3> result{};
            for (int c = 1; c <= 3; ++c) {
                result[static_cast<std::size_t>(c - 1)] =
                    clampByte((P(c, x, y) * (p + 24) - 2 * S8(P, c, x, y)) / (p + 8));
            }
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) = result[static_cast<std::size_t>(c - 1)];
            }
        }
    }
}

void literalEdge(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p) {
    const PixelArray P(PixelBuf);
    for (int y = 2; y <= P.H - 1; ++y) {
        for (int x = 2; x <= P.W - 1; ++x) {
            std::array<std::uint8_t, 3> result{};
            for (int c = 1; c <= 3; ++c) {
                result[static_cast<std::size_t>(c - 1)] =
                    clampByte((P(c, x, y) * (p + 9) - S8(P, c, x, y)) / (p + 1));
            }
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) = result[static_cast<std::size_t>(c - 1)];
            }
        }
    }
}

void literalBlur(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t) {
    const PixelArray P(PixelBuf);
    for (int y = 2; y <= P.H - 1; ++y) {
        for (int x = 2; x <= P.W - 1; ++x) {
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) = static_cast<std::uint8_t>(S8(P, c, x, y) / 8);
            }
        }
    }
}

void literalSmooth(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t) {
    const PixelArray P(PixelBuf);
    for (int y = 2; y <= P.H - 1; ++y) {
        for (int x = 2; x <= P.W - 1; ++x) {
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) =
                    static_cast<std::uint8_t>((P(c, x - 1, y) + P(c, x, y) + P(c, x, y - 1) +
                                               P(c, x, y + 1) + P(c, x + 1, y)) /
                                              5);
            }
        }
    }
}

} // namespace kaart
