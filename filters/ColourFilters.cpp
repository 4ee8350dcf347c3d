#include "filters/ColourFilters.h"

#include "design/surface/Numbers.h"
#include "filters/ByteTable.h"
#include "filters/ColourKernels.h"

#include <array>
#include <cmath>

namespace kaart {

namespace {

constexpr int contrastPrepared = 5; // per cent

std::size_t lengthOf(ConstPixelSpan picture) {
    return static_cast<std::size_t>(picture.width);
}

/// `run(to, from, count)` on every row.
template <typename Run>
void forEachRow(PixelSpan target, ConstPixelSpan source, const Run& run) {
    for (int y = 0; y < source.height; ++y) {
        run(target.row(y), source.row(y), lengthOf(source));
    }
}

/// The same on the array path.
template <typename Run>
void forEachRow(PixelSpan target, ConstPixelSpan source, RowRhythm& rhythm, const Run& run) {
    for (int y = 0; y < source.height; ++y) {
        run(target.row(y), source.row(y), lengthOf(source));
        rhythm.rowDone(y + 1, source.height);
    }
}

std::uint8_t clampByte(double value) {
    return static_cast<std::uint8_t>(std::clamp(roundEven(value), 0, 255));
}

float factorOf(std::int32_t percent) {
    return static_cast<float>(percent) / 100;
}

/// What a vector multiplies with: v * factor / 2^15, to the nearest.
int scaled(int v, std::int16_t factor) {
    return (v * factor + (1 << 14)) >> 15;
}

/// A factor between -1 and 1 as the vectors' fixed point number; out of range it is 0.
std::int16_t fixedPoint(double factor) {
    const int rounded = roundEven(factor * (1 << 15));
    return std::abs(rounded) < 1 << 15 ? static_cast<std::int16_t>(rounded) : std::int16_t{0};
}

std::uint8_t saturated(int channel, int mean, float factor) {
    return clampByte(static_cast<double>(factor) * (channel - mean) + channel);
}

void saturateRow(Pixel* to, const Pixel* from, std::size_t count, float factor) {
    for (std::size_t i = 0; i < count; ++i) {
        const ColorRef colour = toColorRef(from[i]);
        const int mean = (redOf(colour) + greenOf(colour) + blueOf(colour)) / 3;
        to[i] = (from[i] & 0xFF000000U) | Pixel{saturated(redOf(colour), mean, factor)} << 16 |
                Pixel{saturated(greenOf(colour), mean, factor)} << 8 |
                saturated(blueOf(colour), mean, factor);
    }
}

/// Whether fixed point arithmetic rounds factor * distance as it should for every distance.
bool isExact(float factor, std::int16_t half) {
    for (int distance = -255; distance <= 255; ++distance) {
        const double product = static_cast<double>(factor) * distance;
        const bool tie = std::abs(product - std::trunc(product)) == 0.5;
        if (tie || scaled(2 * distance, half) != roundEven(product)) {
            return false;
        }
    }
    return true;
}

} // namespace

void FilterNegative(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t /*parameter*/,
                    RowRhythm& rhythm) {
    forEachRow(PixelBuf, SourceBuf, rhythm, negativeRun);
}

void FilterGrayscale(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t /*parameter*/,
                     RowRhythm& rhythm) {
    forEachRow(PixelBuf, SourceBuf, rhythm, grayRun);
}

void FilterLight(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p, RowRhythm& rhythm) {
    const float factor = factorOf(p + 100);
    const ByteTable GrayTable =
        tableOf([factor](int i) { return static_cast<double>(factor) * i; });
    // A table is looked up byte by byte. Where a product gives the same values, vectors can do it.
    const std::int16_t change = fixedPoint(std::abs(p) / 100.0);
    const bool darker = p < 0;
    const auto byProduct = [&](int i) {
        return i + (darker ? -scaled(i, change) : scaled(i, change));
    };
    const bool exact = tableOf(byProduct) == GrayTable;
    forEachRow(PixelBuf, SourceBuf, rhythm, [&](Pixel* to, const Pixel* from, std::size_t count) {
        exact ? scaleRun(to, from, count, change, darker) : tableRun(to, from, count, GrayTable);
    });
}

void FilterSaturation(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t s,
                      RowRhythm& rhythm) {
    const float factor = factorOf(s);
    const std::int16_t half = fixedPoint(s / 200.0);
    const bool exact = isExact(factor, half);
    forEachRow(PixelBuf, SourceBuf, rhythm, [&](Pixel* to, const Pixel* from, std::size_t count) {
        exact ? saturateRun(to, from, count, half) : saturateRow(to, from, count, factor);
    });
}

void FilterSwap(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t order,
                RowRhythm& rhythm) {
    // Which old byte (0 blue, 1 green, 2 red) becomes the new blue, green and red.
    static constexpr std::array<Pixel, 6> patterns = {0x03020100U, 0x03000201U, 0x03010002U,
                                                      0x03020001U, 0x03000102U, 0x03010200U};
    const bool known = order >= 1 && order <= 5;
    const Pixel pattern = patterns[known ? static_cast<std::size_t>(order) : 0];
    forEachRow(PixelBuf, SourceBuf, rhythm, [&](Pixel* to, const Pixel* from, std::size_t count) {
        shuffleRun(to, from, count, pattern);
    });
}

void FilterContrast(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t p,
                    RowRhythm& rhythm) {
    const int mean = meanGray(SourceBuf);
    const auto factor = static_cast<double>(factorOf(p + 100));
    const std::int16_t change = fixedPoint(p / 100.0);
    std::array<std::int16_t, 256> GrayTable{};
    bool exact = true;
    for (int i = 0; i < 256; ++i) {
        const int stretched = roundEven(factor * (i - mean) + mean);
        GrayTable[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(stretched);
        exact = exact && i + scaled(i - mean, change) == stretched;
    }
    rhythm.prepared(contrastPrepared);
    forEachRow(PixelBuf, SourceBuf, rhythm, [&](Pixel* to, const Pixel* from, std::size_t count) {
        exact ? stretchRun(to, from, count, static_cast<std::int16_t>(mean), change)
              : spreadRun(to, from, count, GrayTable);
    });
}

void FilterInkleuren(PixelSpan target, ConstPixelSpan source) {
    for (int y = 0; y < source.height; ++y) {
        const Pixel* from = source.row(y);
        Pixel* to = target.row(y);
        const bool inner = y > 0 && source.width > 1;
        std::copy_n(from, inner ? std::size_t{1} : lengthOf(source), to);
        if (inner) {
            mergeRun(to + 1, from + 1, source.row(y - 1), lengthOf(source) - 1);
        }
    }
}

void FilterDodge(PixelSpan target, ConstPixelSpan source) {
    forEachRow(target, source, doubleRun);
}

void FilterModern(PixelSpan target, ConstPixelSpan source) {
    static const ByteTable table = tableOf([](int v) {
        // Kept: 255 would be divided by 0 and so stays.
        return v <= 127 ? (255 - v) * v : v == 255 ? v : v / (255.0 - v);
    });
    forEachRow(target, source, [](Pixel* to, const Pixel* from, std::size_t count) {
        tableRun(to, from, count, table);
    });
}

void FilterSepia(PixelSpan target, ConstPixelSpan source) {
    forEachRow(target, source, sepiaRun);
}

void FilterZwartWit(PixelSpan target, ConstPixelSpan source, double threshold) {
    const int lowest = static_cast<int>(std::ceil(std::clamp(threshold, 0.0, 256.0)));
    forEachRow(target, source, [lowest](Pixel* to, const Pixel* from, std::size_t count) {
        std::transform(from, from + count, to, [lowest](Pixel pixel) {
            const ColorRef colour = toColorRef(pixel);
            // A third never ends in a half, so adding 1 rounds to the nearest.
            const int gray = (redOf(colour) + greenOf(colour) + blueOf(colour) + 1) / 3;
            return toPixel(gray >= lowest ? white : black);
        });
    });
}

int meanGray(ConstPixelSpan picture) {
    std::uint64_t sum = 0;
    forEachRow({}, picture, [&](Pixel*, const Pixel* from, std::size_t count) {
        sum += sumOfGrays(from, count);
    });
    const std::uint64_t pixels = lengthOf(picture) * static_cast<std::uint64_t>(picture.height);
    return pixels == 0 ? 0 : static_cast<int>(sum / pixels);
}

} // namespace kaart
