#include "generators/Blokken.h"

#include "design/surface/Numbers.h"

#include <array>
#include <cstddef>

namespace kaart {

namespace {

/// What becomes of a channel, by its value.
using ChannelTable = std::array<std::uint8_t, 256>;

template <typename Value>
ChannelTable tableOf(const Value& value) {
    ChannelTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(roundEven(value(static_cast<double>(i))));
    }
    return table;
}

ChannelTable blendTable(double colour, double share) {
    return tableOf([=](double v) { return v - v * share + colour * share; });
}

Pixel lookUp(const ChannelTable& table, Pixel pixel) {
    const auto channel = [&](int shift) { return Pixel{table[pixel >> shift & 0xFFU]} << shift; };
    return 0xFF000000U | channel(16) | channel(8) | channel(0);
}

void blend(PixelSpan pixels, int x, int y, const ChannelTable& table) {
    if (pixels.contains(x, y)) {
        Pixel& pixel = pixels.row(y)[x];
        pixel = lookUp(table, pixel);
    }
}

} // namespace

void FadePicture(PixelSurface& pic, int p, RowRhythm& rhythm) {
    const ChannelTable table = tableOf([p](double c) { return (c * p + (100 - p) * 255) / 100; });
    for (int x = 0; x < pic.bounds().width(); ++x) {
        const PixelSpan pixels = pic.writePixels(QRect(x, 0, 1, pic.bounds().height()));
        for (int y = 0; y < pixels.height; ++y) {
            Pixel& pixel = pixels.row(y)[x];
            pixel = lookUp(table, pixel);
        }
        rhythm.rowDone(x + 1, pixels.width);
    }
}

void BevelPicture(PixelSurface& surface, std::int32_t width, int inout, double light) {
    const double share = light / 255;
    const ChannelTable leftTop = blendTable(inout == 1 ? 255 : 0, share);
    const ChannelTable rightBottom = blendTable(inout == 1 ? 0 : 255, share);
    const PixelSpan pixels = surface.writePixels();
    const int right = pixels.width - 1;
    const int bottom = pixels.height - 1;
    for (int i = 0; i <= width; ++i) {
        for (int j = i; j <= bottom - i; ++j) {
            blend(pixels, i, j, leftTop);
            blend(pixels, right - i, j, rightBottom);
        }
    }
    for (int i = 0; i <= width; ++i) {
        for (int j = 1 + i; j <= right - 1 - i; ++j) {
            blend(pixels, j, i, leftTop);
            blend(pixels, j, bottom - i, rightBottom);
        }
    }
}

} // namespace kaart
