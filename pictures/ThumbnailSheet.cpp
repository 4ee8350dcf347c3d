#include "pictures/ThumbnailSheet.h"

namespace kaart {

namespace {

constexpr int margin = 13;
constexpr int columns = 5;
constexpr QSize pitch(120, 110);
constexpr int outlineGap = 2;
constexpr int outlineExtra = 5; // both sides together

} // namespace

QSize thumbnailSize(const QSize& picture) {
    if (picture.width() == picture.height()) {
        return {80, 80};
    }
    return picture.width() < picture.height() ? QSize(66, 90) : QSize(90, 66);
}

QRect thumbnailPlace(int index, const QSize& thumbnail) {
    const QPoint at(margin + index % columns * pitch.width(),
                    margin + index / columns * pitch.height());
    return {at, thumbnail};
}

QRect outlinePlace(const QRect& thumbnail) {
    return {thumbnail.topLeft() - QPoint(outlineGap, outlineGap),
            thumbnail.size() + QSize(outlineExtra, outlineExtra)};
}

int sheetHeight(int count) {
    return count == 0 ? 0 : margin + (count + columns - 1) / columns * pitch.height();
}

void drawProgress(PixelSurface& bar, int done, int count) {
    const int percent = done * 100 / count;
    const int right = percent * (progressWidth / 100);
    for (int row = 0; row <= 8; ++row) {
        bar.Line(0, row, right, row + 1, RGB(0, row * 10 + 130, 0), LineMode::FilledBox);
    }
}

} // namespace kaart
