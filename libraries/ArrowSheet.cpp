#include "libraries/ArrowSheet.h"

#include "design/surface/GraphicsCalls.h"
#include "design/surface/PictureGate.h"
#include "filters/Flip.h"

namespace kaart {

ArrowSheet::ArrowSheet() {
    BackPic.AutoSize = true;
}

bool ArrowSheet::open(const QString& path) {
    const auto sheet = LoadPicture(path);
    if (sheet) {
        BackPic.setPicture(*sheet);
        showRow(0);
    }
    return sheet.has_value();
}

void ArrowSheet::showRow(int row) {
    const double width = Pic.ScaleWidth();
    Pic.PaintPicture(BackPic.Image(), 0, 0, width, cell, 0, row * cell, width, cell);
}

void ArrowSheet::pick(int x) {
    const int left = x % cell == cell - 1 ? 0 : x / cell * cell;
    Picture1.PaintPicture(Pic.Image(), 0, 0, cell, cell, left, 0, cell, cell);
    MiniPic.PaintPicture(Pic.Image(), 0, 0, half, half, left, 0, cell, cell);
    RotatiePic.setPicture(Picture1.Image());
    PictureChosen = true;
}

void ArrowSheet::turn() {
    for (int j = 0; j < cell; ++j) {
        for (int i = 0; i < cell; ++i) {
            SetPixel(Picture1, cell - 1 - j, i, GetPixel(RotatiePic, i, j));
        }
    }
    RotatiePic.setPicture(Picture1.Image());
    MiniPic.PaintPicture(Picture1.Image(), 0, 0, half, half, 0, 0, cell, cell);
}

void ArrowSheet::mirror() {
    FlipHorizontal(Picture1);
    FlipHorizontal(MiniPic);
}

} // namespace kaart
