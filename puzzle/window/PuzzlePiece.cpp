#include "puzzle/window/PuzzlePiece.h"

#include "controls/Palette.h"
#include "controls/Shades.h"
#include "design/surface/Numbers.h"

#include <QPainter>

namespace kaart {

namespace {

constexpr ColorRef borderColor = RGB(60, 60, 60);
constexpr ColorRef focusColor = RGB(30, 90, 200);
constexpr ColorRef pickedColor = RGB(225, 120, 20);
constexpr ColorRef targetColor = RGB(40, 150, 40);
constexpr int markWidth = 4;
constexpr double ghostOpacity = 0.85;

/// A frame that is seen on every picture.
void drawMark(QPainter& painter, const QRect& box, ColorRef colour) {
    fillFrame(painter, box, markWidth, toQColor(colour));
    fillFrame(painter, box.marginsRemoved({markWidth, markWidth, markWidth, markWidth}), 1,
              Qt::white);
}

} // namespace

PuzzlePiece::PuzzlePiece(const PuzzlePart& part, QWidget* parent)
    : SurfaceView(parent), index_(part.Index) {
    setObjectName(QStringLiteral("picParts(%1)").arg(part.Index));
    setAccessibleName(QStringLiteral("Stukje %1").arg(part.Index));
    resize(part.Picture.bounds().size());
    surface() = part.Picture;
    follow(part);
}

void PuzzlePiece::follow(const PuzzlePart& part) {
    cell_ = part.Tag;
    // Down, or the last row and column would lose their border.
    move(static_cast<int>(part.Left) / twipsPerPixel, static_cast<int>(part.Top) / twipsPerPixel);
    setVisible(part.Visible);
    if (border_ != part.BorderStyle) {
        border_ = part.BorderStyle;
        update();
    }
}

void PuzzlePiece::setMarks(const PieceMarks& marks) {
    if (marks_ != marks) {
        marks_ = marks;
        update();
    }
}

QPixmap PuzzlePiece::ghost() const {
    const double ratio = devicePixelRatioF();
    QPixmap pixmap((QSizeF(size()) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(ghostOpacity);
    painter.drawImage(0, 0, Image());
    painter.setOpacity(1);
    drawMark(painter, rect(), pickedColor);
    return pixmap;
}

void PuzzlePiece::paintEvent(QPaintEvent* event) {
    SurfaceView::paintEvent(event);
    QPainter painter(this);
    if (marks_.picked) {
        painter.fillRect(rect(), QColor(255, 255, 255, 140));
    }
    if (border_ == 1) {
        fillFrame(painter, rect(), 1, toQColor(borderColor));
    }
    if (marks_.target) {
        drawMark(painter, rect(), targetColor);
    } else if (marks_.focus) {
        drawMark(painter, rect(), focusColor);
    } else if (marks_.picked) {
        drawMark(painter, rect(), pickedColor);
    }
}

} // namespace kaart
