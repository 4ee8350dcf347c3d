#include "tests/support/LiteralFilters.h"

#include "tests/support/PixelArrays.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace kaart {

namespace {

/// `value(S, c, x, y)` for every channel of every pixel that has neighbours on all sides.
template <typename Source, typename Value>
void eachInner(PixelSpan PixelBuf, const Source& S, const Value& value) {
    const PixelArray P(PixelBuf);
    for (int y = 2; y <= S.H - 1; ++y) {
        for (int x = 2; x <= S.W - 1; ++x) {
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) = clampByte(value(S, c, x, y));
            }
        }
    }
}

template <typename Value>
void eachInner(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, const Value& value) {
    eachInner(PixelBuf, ConstPixelArray(SourceBuf), value);
}

/// Reads what it has written.
template <typename Value>
void eachInPlace(PixelSpan PixelBuf, const Value& value) {
    eachInner(PixelBuf, PixelArray(PixelBuf), value);
}

template <typename Source>
int S8(const Source& P, int c, int x, int y) {
    return P(c, x - 1, y - 1) + P(c, x, y - 1) + P(c, x + 1, y - 1) + P(c, x - 1, y) +
           P(c, x + 1, y) + P(c, x - 1, y + 1) + P(c, x, y + 1) + P(c, x + 1, y + 1);
}

void literalSharpen(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p) {
    eachInPlace(PixelBuf, [p](const PixelArray& P, int c, int x, int y) {
        return (P(c, x, y) * (p + 24) - 2 * S8(P, c, x, y)) / (p + 8);
    });
}

void literalEdge(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p) {
    eachInPlace(PixelBuf, [p](const PixelArray& P, int c, int x, int y) {
        return (P(c, x, y) * (p + 9) - S8(P, c, x, y)) / (p + 1);
    });
}

void literalBlur(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t) {
    eachInPlace(PixelBuf,
                [](const PixelArray& P, int c, int x, int y) { return S8(P, c, x, y) / 8; });
}

void literalSmooth(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t) {
    eachInPlace(PixelBuf, [](const PixelArray& P, int c, int x, int y) {
        return (P(c, x - 1, y) + P(c, x, y) + P(c, x, y - 1) + P(c, x, y + 1) + P(c, x + 1, y)) / 5;
    });
}

int leastOf(const ConstPixelArray& S, int c, int x, int y) {
    int least = 255;
    for (int yy = y - 1; yy <= y + 1; ++yy) {
        for (int xx = x - 1; xx <= x + 1; ++xx) {
            least = std::min<int>(least, S(c, xx, yy));
        }
    }
    return least;
}

void literalErode(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachInner(PixelBuf, SourceBuf, leastOf);
}

void literalConnection(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachInner(PixelBuf, SourceBuf, [](const ConstPixelArray& S, int c, int x, int y) {
        return S(c, x, y) - leastOf(S, c, x, y);
    });
}

void literalContour(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t k) {
    const std::array<int, 4> parts = {0, k >> 16 & 255, k >> 8 & 255, k & 255};
    eachInner(PixelBuf, SourceBuf, [&](const ConstPixelArray& P, int c, int x, int y) {
        return 8 * P(c, x, y) - S8(P, c, x, y) + parts[static_cast<std::size_t>(c)];
    });
}

void literalRelief(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    eachInner(PixelBuf, SourceBuf, [](const ConstPixelArray& P, int c, int x, int y) {
        const int E = 2 * P(c, x - 1, y - 1) + P(c, x - 1, y) + P(c, x, y - 1) - P(c, x, y + 1) -
                      P(c, x + 1, y) - 2 * P(c, x + 1, y + 1);
        return (P(c, x, y) + E) / 2 + 50;
    });
}

/// A picture by points counted from 0.
Pixel& at(PixelSpan span, int x, int y) {
    return span.row(y)[x];
}
Pixel at(ConstPixelSpan span, int x, int y) {
    return span.row(y)[x];
}

void literalInkleuren(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    for (int y = 1; y < SourceBuf.height; ++y) {
        for (int x = 1; x < SourceBuf.width; ++x) {
            at(PixelBuf, x, y) = ~at(SourceBuf, x - 1, y - 1) | at(SourceBuf, x, y) | 0xFF000000U;
        }
    }
}

void literalFlipH(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    for (int y = 0; y < SourceBuf.height; ++y) {
        for (int x = 0; x < SourceBuf.width; ++x) {
            at(PixelBuf, x, y) = at(SourceBuf, SourceBuf.width - 1 - x, y);
        }
    }
}

void literalFlipV(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    for (int y = 0; y < SourceBuf.height; ++y) {
        for (int x = 0; x < SourceBuf.width; ++x) {
            at(PixelBuf, x, y) = at(SourceBuf, x, SourceBuf.height - 1 - y);
        }
    }
}

void literalCopyLeft(PixelSpan pic, ConstPixelSpan, std::int32_t) {
    for (int x = 0; x <= (pic.width - 1) / 2.0; ++x) {
        for (int y = 0; y <= pic.height - 1; ++y) {
            at(pic, pic.width - 1 - x, y) = at(pic, x, y);
        }
    }
}

void literalCopyTop(PixelSpan pic, ConstPixelSpan, std::int32_t) {
    for (int y = 0; y <= (pic.height - 1) / 2.0; ++y) {
        for (int x = 0; x <= pic.width - 1; ++x) {
            at(pic, x, pic.height - 1 - y) = at(pic, x, y);
        }
    }
}

void literalCopyCorners(PixelSpan pic, ConstPixelSpan, std::int32_t) {
    for (int y = 0; y <= (pic.height - 1) / 2.0; ++y) {
        for (int x = 0; x <= pic.width - 0.5 && x < pic.width; ++x) {
            const Pixel c = at(pic, x, y);
            at(pic, pic.width - 1 - x, y) = c;
            at(pic, x, pic.height - 1 - y) = c;
        }
    }
}

constexpr std::array literals = {
    LiteralFilter{"sharpen", literalSharpen},
    LiteralFilter{"negative", literalNegative},
    LiteralFilter{"blur", literalBlur},
    LiteralFilter{"defuse", literalDefuse},
    LiteralFilter{"smooth", literalSmooth},
    LiteralFilter{"edge", literalEdge},
    LiteralFilter{"contour", literalContour},
    LiteralFilter{"grayscale", literalGrayscale},
    LiteralFilter{"relief", literalRelief},
    LiteralFilter{"light", literalLight},
    LiteralFilter{"pixelize", literalPixelize},
    LiteralFilter{"swap", literalSwap},
    LiteralFilter{"contrast", literalContrast},
    LiteralFilter{"stucki", literalDither},
    LiteralFilter{"kuwahara", literalAquarel},
    LiteralFilter{"erode", literalErode},
    LiteralFilter{"connection", literalConnection},
    LiteralFilter{"noise", literalNoise},
    LiteralFilter{"saturation", literalSaturation},
    LiteralFilter{"inkleuren", literalInkleuren},
    LiteralFilter{"sepia", literalSepia},
    LiteralFilter{"dodge", literalDodge},
    LiteralFilter{"modern", literalModern},
    LiteralFilter{"flip_h", literalFlipH},
    LiteralFilter{"flip_v", literalFlipV},
    LiteralFilter{"copy_left", literalCopyLeft},
    LiteralFilter{"copy_top", literalCopyTop},
    LiteralFilter{"copy_corners", literalCopyCorners},
};

} // namespace

std::span<const LiteralFilter> literalFilters() {
    return literals;
}

const LiteralFilter* findLiteral(const char* op) {
    const auto* const found = std::ranges::find_if(
        literals, [op](const LiteralFilter& literal) { return std::strcmp(literal.op, op) == 0; });
    return found == literals.end() ? nullptr : found;
}

} // namespace kaart
