#include "libraries/LineDrawing.h"

#include "design/surface/FileList.h"
#include "design/surface/PictureGate.h"

namespace kaart {

namespace {

constexpr int eraserSize = 20;
constexpr int eraserRim = 2;

} // namespace

QStringList lineDrawingNames(const QString& folder) {
    return fileNames(folder, {QStringLiteral("*.vec")});
}

QRect eraserCursor(QPoint pointer) {
    constexpr int before = eraserSize - eraserRim;
    return {pointer - QPoint(before, before), QSize(eraserSize, eraserSize)};
}

LineDrawing::LineDrawing() {
    BackPic.AutoSize = true;
}

bool LineDrawing::open(const QString& path) {
    const auto picture = LoadPicture(path);
    if (picture) {
        BackPic.setPicture(*picture);
    }
    return picture.has_value();
}

QSize LineDrawing::overflow() const {
    return (BackPic.bounds().size() - Pic.bounds().size()).expandedTo(QSize(0, 0));
}

void LineDrawing::scrollTo(QPoint offset) {
    const double width = Pic.ScaleWidth();
    const double height = Pic.ScaleHeight();
    Pic.Cls(); // a drawing that is smaller doesn't stand among what is left of another
    Pic.PaintPicture(BackPic.Image(), 0, 0, width, height, offset.x(), offset.y(), width, height);
}

void LineDrawing::cut(const QRect& part) {
    CopyPic.setSize(part.width(), part.height());
    CopyPic.Cls();
    CopyPic.PaintPicture(Pic.Image(), 0, 0, part.width(), part.height(), part.left(), part.top(),
                         part.width(), part.height());
}

void LineDrawing::erase(QPoint pointer) {
    constexpr int middle = eraserSize / 2;
    CopyPic.FillColor = white;
    CopyPic.FillStyle = Fill::Solid;
    CopyPic.Circle(pointer.x() - middle, pointer.y() - middle, middle - eraserRim, white);
    CopyPic.FillStyle = Fill::Transparent;
}

} // namespace kaart
