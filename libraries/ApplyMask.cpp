#include "libraries/ApplyMask.h"

namespace kaart {

namespace {

constexpr int threshold = 250;
constexpr int lastUprightRow = 639;

bool isNearWhite(Pixel pixel) {
    const ColorRef colour = toColorRef(pixel);
    return redOf(colour) > threshold && greenOf(colour) > threshold && blueOf(colour) > threshold;
}

/// The same row of the design.
void whitenRow(PixelSurface& pic, const Pixel* mask, int width, int y) {
    const QRect line = QRect(0, y, width, 1) & pic.bounds();
    if (line.isEmpty()) {
        return;
    }
    Pixel* row = pic.writePixels(line).row(y);
    for (int x = 0; x < line.width(); ++x) {
        row[x] = isNearWhite(mask[x]) ? toPixel(white) : row[x];
    }
}

/// The design's column x, upwards from its last row.
void whitenColumn(PixelSurface& pic, const Pixel* mask, int width, int x) {
    const QRect line = QRect(x, lastUprightRow + 1 - width, 1, width) & pic.bounds();
    if (line.isEmpty()) {
        return;
    }
    const PixelSpan pixels = pic.writePixels(line);
    for (int y = line.top(); y <= line.bottom(); ++y) {
        Pixel& pixel = pixels.row(y)[x];
        pixel = isNearWhite(mask[lastUprightRow - y]) ? toPixel(white) : pixel;
    }
}

} // namespace

void ApplyMask(PixelSurface& pic, const QImage& mask, RowRhythm& rhythm) {
    const ConstPixelSpan source = spanOf(mask);
    const bool lying = pic.bounds().width() > pic.bounds().height();
    const auto whiten = lying ? whitenRow : whitenColumn;
    for (int y = 0; y < source.height; ++y) {
        whiten(pic, source.row(y), source.width, y);
        rhythm.rowDone(y + 1, source.height);
    }
}

} // namespace kaart
