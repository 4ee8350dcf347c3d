#include "libraries/Sticker.h"

#include "design/surface/FileList.h"
#include "design/surface/Numbers.h"
#include "design/surface/PictureGate.h"
#include "filters/ColourFilters.h"

namespace kaart {

namespace {

// Of the shown sheet: the cells are 100 pixels wide with 10 between them, and their borders don't
// belong to them.
const QRect firstCell(6, 6, 99, 109);
constexpr int cellStep = 110;
constexpr int cellCount = 5;

} // namespace

QStringList stickerSheetNames(const QString& folder) {
    return fileNames(folder, {QStringLiteral("*.art")});
}

int stickerLeft(QPoint at) {
    for (int cell = 0; cell < cellCount; ++cell) {
        if (firstCell.translated(cell * cellStep, 0).contains(at)) {
            return cell * stickerCell.width();
        }
    }
    return 0;
}

int stickerHeight(int width) {
    return roundEven(width * 1.09);
}

Sticker::Sticker() {
    BackPic.AutoSize = true;
}

bool Sticker::openSheet(const QString& path) {
    if (const auto picture = LoadPicture(path)) {
        BackPic.setPicture(*picture);
    }
    if (BackPic.bounds().size() != sheetSize) {
        return false;
    }
    Pic.PaintPicture(BackPic.Image(), 0, 0, Pic.ScaleWidth(), Pic.ScaleHeight(), 0, 0,
                     sheetSize.width(), sheetSize.height());
    return true;
}

void Sticker::pick(QPoint at) {
    ExportPic.PaintPicture(BackPic.Image(), 0, 0, stickerCell.width(), stickerCell.height(),
                           stickerLeft(at), 0, stickerCell.width(), stickerCell.height());
    paintBigPic();
}

void Sticker::resize(int width) {
    BigPic.setSize(width, stickerHeight(width));
    paintBigPic();
}

void Sticker::paintBigPic() {
    BigPic.PaintPicture(ExportPic.Image(), 0, 0, BigPic.ScaleWidth(), BigPic.ScaleHeight(), 0, 0,
                        stickerCell.width(), stickerCell.height());
}

void Sticker::removeColours(double threshold, RowRhythm& rhythm) {
    for (int y = 0; y < BigPic.bounds().height(); ++y) {
        const PixelSpan pixels = BigPic.writePixels(QRect(0, y, BigPic.bounds().width(), 1));
        const PixelSpan line{pixels.row(y), pixels.width, 1};
        FilterZwartWit(line, {line.data, line.width, line.height}, threshold);
        rhythm.rowDone(y + 1, pixels.height);
    }
}

} // namespace kaart
