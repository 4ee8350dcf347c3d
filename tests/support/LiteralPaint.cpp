#include "tests/support/LiteralFilters.h"

#include "design/surface/Random.h"
#include "tests/support/PixelArrays.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace kaart {

namespace {

/// One target of the diffusion: its row 1 to 3, its column from x, its share of the error in 42nds.
struct Share {
    std::size_t row;
    int dx;
    int weight;
};
constexpr Share shares[] = {{1, 1, 8}, {1, 2, 4},  {2, -2, 2}, {2, -1, 4}, {2, 0, 8}, {2, 1, 4},
                            {2, 2, 2}, {3, -2, 1}, {3, -1, 2}, {3, 0, 4},  {3, 1, 2}, {3, 2, 1}};

using ErrorRow = std::vector<std::int32_t>;

std::vector<std::array<std::int32_t, 12>> errorShares() {
    std::vector<std::array<std::int32_t, 12>> ErrorShare(511);
    for (int e = -255; e <= 255; ++e) {
        for (std::size_t share = 0; share < 12; ++share) {
            ErrorShare[static_cast<std::size_t>(e + 255)][share] = shares[share].weight * e / 42;
        }
    }
    return ErrorShare;
}

int grayOf(const ConstPixelArray& S, int x, int y) {
    return (S(1, x, y) + S(2, x, y) + S(3, x, y)) / 3;
}

int meanGray(const ConstPixelArray& S) {
    std::int64_t sum = 0;
    for (int y = 1; y <= S.H; ++y) {
        for (int x = 1; x <= S.W; ++x) {
            sum += grayOf(S, x, y);
        }
    }
    return static_cast<int>(sum / (static_cast<std::int64_t>(S.W) * S.H));
}

int rounded(float value) {
    return static_cast<int>(std::nearbyint(value));
}

} // namespace

void literalPixelize(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s) {
    const PixelArray P(PixelBuf);
    const ConstPixelArray S(SourceBuf);
    std::array<int, 4> sum{};
    for (int y = 1; y <= P.H; ++y) {
        for (int x = 1; x <= P.W; ++x) {
            if ((x - 1) % s == 0) {
                const int xs = (x - 1) / s * s + 1;
                const int ys = (y - 1) / s * s + 1;
                int count = 0;
                sum = {};
                for (int xx = xs; xx <= xs + s - 1; ++xx) {
                    for (int yy = ys; yy <= ys + s - 1; ++yy) {
                        if (xx <= P.W && yy <= P.H) {
                            sum[1] += S(1, xx, yy);
                            sum[2] += S(2, xx, yy);
                            sum[3] += S(3, xx, yy);
                            ++count;
                        }
                    }
                }
                if (count > 0) {
                    sum[1] /= count;
                    sum[2] /= count;
                    sum[3] /= count;
                }
            }
            P(1, x, y) = static_cast<std::uint8_t>(sum[1]);
            P(2, x, y) = static_cast<std::uint8_t>(sum[2]);
            P(3, x, y) = static_cast<std::uint8_t>(sum[3]);
        }
    }
}

void literalDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p) {
    const PixelArray P(PixelBuf);
    const ConstPixelArray S(SourceBuf);
    const auto ErrorShare = errorShares();
    std::array<ErrorRow, 4> ErrorRows;
    ErrorRows.fill(ErrorRow(static_cast<std::size_t>(P.W) + 1));
    const int T = meanGray(S);
    for (int y = 1; y <= P.H; ++y) {
        for (int x = 1; x <= P.W; ++x) {
            const int v =
                clampByte(ErrorRows[1][static_cast<std::size_t>(x)] * 10 / p + grayOf(S, x, y));
            const int output = v < T ? 0 : 255;
            P(1, x, y) = P(2, x, y) = P(3, x, y) = static_cast<std::uint8_t>(output);
            const auto& share = ErrorShare[static_cast<std::size_t>(v - output + 255)];
            for (std::size_t i = 0; i < 12; ++i) {
                const int target = x + shares[i].dx;
                if (target >= 1 && target <= P.W &&
                    y + static_cast<int>(shares[i].row) - 1 <= P.H) {
                    ErrorRows[shares[i].row][static_cast<std::size_t>(target)] += share[i];
                }
            }
        }
        ErrorRows[1].swap(ErrorRows[2]);
        ErrorRows[2].swap(ErrorRows[3]);
        ErrorRows[3].assign(ErrorRows[3].size(), 0);
    }
}

void literalAquarel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t) {
    const PixelArray P(PixelBuf);
    const ConstPixelArray S(SourceBuf);
    constexpr std::array<std::array<int, 2>, 4> corners = {{{-2, -2}, {0, -2}, {-2, 0}, {0, 0}}};
    for (int y = 3; y <= P.H - 2; ++y) {
        for (int x = 3; x <= P.W - 2; ++x) {
            for (int c = 1; c <= 3; ++c) {
                int lowest = 99999;
                for (const auto& [left, top] : corners) {
                    int mean = 0;
                    for (int i = 0; i < 9; ++i) {
                        mean += S(c, x + left + i % 3, y + top + i / 3);
                    }
                    mean /= 9;
                    int dev = 0;
                    for (int i = 0; i < 9; ++i) {
                        dev += std::abs(S(c, x + left + i % 3, y + top + i / 3) - mean);
                    }
                    if (dev < lowest) {
                        lowest = dev;
                        P(c, x, y) = static_cast<std::uint8_t>(mean);
                    }
                }
            }
        }
    }
}

void literalDefuse(PixelSpan PixelBuf, ConstPixelSpan, std::int32_t p) {
    const PixelArray P(PixelBuf);
    const auto h = static_cast<float>(std::nearbyint(p / 2.0));
    for (int y = 1; y <= P.H; ++y) {
        for (int x = 1; x <= P.W; ++x) {
            int dx = rounded(Rnd() * static_cast<float>(p) - h);
            int dy = rounded(Rnd() * static_cast<float>(p) - h);
            if (x + dx < 1 || x + dx > P.W) {
                dx = 0;
            }
            if (y + dy < 1 || y + dy > P.H) {
                dy = 0;
            }
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) = P(c, x + dx, y + dy);
            }
        }
    }
}

void literalNoise(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t n) {
    const PixelArray P(PixelBuf);
    const ConstPixelArray S(SourceBuf);
    for (int y = 1; y <= P.H; ++y) {
        for (int x = 1; x <= P.W; ++x) {
            for (int c = 1; c <= 3; ++c) {
                P(c, x, y) = clampByte(rounded(Rnd() * static_cast<float>(2 * n + 1) -
                                               static_cast<float>(n) + S(c, x, y)));
            }
        }
    }
}

} // namespace kaart
