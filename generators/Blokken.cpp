#include "generators/Blokken.h"

#include "filters/ColourKernels.h"

namespace kaart {

namespace {

ByteTable blendTable(double colour, double share) {
    return tableOf([=](double v) { return v - v * share + colour * share; });
}

void blend(PixelSpan pixels, int x, int y, const ByteTable& table) {
    if (pixels.contains(x, y)) {
        Pixel* pixel = pixels.row(y) + x;
        tableRun(pixel, pixel, 1, table);
    }
}

} // namespace

void FadePicture(PixelSurface& pic, int p, RowRhythm& rhythm) {
    const ByteTable table = tableOf([p](double c) { return (c * p + (100 - p) * 255) / 100; });
    for (int x = 0; x < pic.bounds().width(); ++x) {
        const PixelSpan pixels = pic.writePixels(QRect(x, 0, 1, pic.bounds().height()));
        for (int y = 0; y < pixels.height; ++y) {
            blend(pixels, x, y, table);
        }
        rhythm.rowDone(x + 1, pixels.width);
    }
}

void BevelPicture(PixelSurface& surface, std::int32_t width, int inout, double light) {
    const double share = light / 255;
    const ByteTable leftTop = blendTable(inout == 1 ? 255 : 0, share);
    const ByteTable rightBottom = blendTable(inout == 1 ? 0 : 255, share);
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
