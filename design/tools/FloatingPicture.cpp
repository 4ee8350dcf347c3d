#include "design/tools/FloatingPicture.h"

#include "design/surface/Numbers.h"
#include "filters/Flip.h"

namespace kaart {

namespace {

void hideFloat(Design& design) {
    design.ClipPic.Visible = false;
    design.showFloat();
}

void cancel(Design& design) {
    hideFloat(design);
    design.ToonInfo();
}

void putDown(Design& design, RasterOp rop) {
    const PixelSurface& clip = design.ClipPic;
    const double width = clip.ScaleWidth();
    const double height = clip.ScaleHeight();
    design.changeFurther([&](PixelSurface& pic) {
        pic.PaintPicture(clip.Image(), clip.Left + floatFrame, clip.Top + floatFrame, width, height,
                         0, 0, width, height, rop);
    });
    cancel(design);
}

void copyRowWithout(ColorRef background, PixelSurface& pic, ConstPixelSpan source, int row,
                    QPoint at) {
    const QRect line = QRect(at.x(), at.y() + row, source.width, 1) & pic.bounds();
    if (line.isEmpty()) {
        return;
    }
    const Pixel* from = source.row(row) + (line.left() - at.x());
    Pixel* to = pic.writePixels(line).row(line.top()) + line.left();
    for (int i = 0; i < line.width(); ++i) {
        to[i] = toColorRef(from[i]) != background ? from[i] : to[i];
    }
}

void putDownWithoutBackground(Design& design, RowRhythm& rhythm) {
    // Read before the first row: at a turn of the window system another picture may be handed over.
    const QImage picture = design.ClipPic.Image();
    const QPoint at(roundEven(design.ClipPic.Left) + floatFrame,
                    roundEven(design.ClipPic.Top) + floatFrame);
    // Counted without the frame, as the rows are. Outside of a small picture it is noColor, which
    // no pixel has.
    const ColorRef background = design.ClipPic.Point(2, 2);
    hideFloat(design);
    for (int row = 0; row < picture.height(); ++row) {
        design.changeFurther(
            [&](PixelSurface& pic) { copyRowWithout(background, pic, spanOf(picture), row, at); });
        rhythm.rowDone(row + 1, picture.height());
    }
    design.ToonInfo();
}

void flip(Design& design, void (*turn)(PixelSurface&)) {
    turn(design.ClipPic);
    design.showFloat();
}

} // namespace

void handOver(Design& design, const QImage& picture, const QString& hint, bool takesMode50) {
    if (picture.isNull()) {
        return;
    }
    if (takesMode50) {
        design.setTekenModus(50);
    }
    design.ClipPic.setPicture(picture);
    design.ClipPic.Top = 0;
    design.ClipPic.Left = 0;
    design.ClipPic.Visible = true;
    design.showFloat();
    design.ToonInfo(hint, 170, 0, 0);
}

void grabFloat(Design& design, QPoint at) {
    design.GrijpX = at.x();
    design.GrijpY = at.y();
}

void dragFloat(Design& design, QPoint at) {
    moveFloat(design, at - QPoint(roundEven(design.GrijpX), design.GrijpY));
}

void moveFloat(Design& design, QPoint by) {
    design.ClipPic.Left += by.x();
    design.ClipPic.Top += by.y();
    design.showFloat();
}

void Plak(Design& design, int index, RowRhythm& rhythm) {
    design.change([](PixelSurface&) {});
    switch (index) {
    case 1:
        cancel(design);
        break;
    case 3:
        putDown(design, RasterOp::Copy);
        break;
    case 4:
        putDown(design, RasterOp::And);
        break;
    case 5:
        putDownWithoutBackground(design, rhythm);
        break;
    case 7:
        flip(design, FlipHorizontal);
        break;
    case 8:
        flip(design, FlipVertical);
        break;
    default:
        break;
    }
}

} // namespace kaart
