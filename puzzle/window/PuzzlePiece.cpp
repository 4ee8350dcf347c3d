#include "puzzle/window/PuzzlePiece.h"

#include "controls/Palette.h"
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

/// A frame of whole pixels along the inside of a box.
void drawFrame(QPainter& painter, const QRect& box, int width, ColorRef colour) {
    const QColor ink = toQColor(colour);
    painter.fillRect(box.left(), box.top(), box.width(), width, ink);
    painter.fillRect(box.left(), box.bottom() + 1 - width, box.width(), width, ink);
    painter.fillRect(box.left(), box.top(), width, box.height(), ink);
    painter.fillRect(box.right() + 1 - width, box.top(), width, box.height(), ink);
}

/// A frame that is seen on every picture.
void drawMark(QPainter& painter, const QRect& box, ColorRef colour) {
    drawFrame(painter, box, markWidth, colour);
    drawFrame(painter, box.marginsRemoved({markWidth, markWidth, markWidth, markWidth}), 1, white);
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
    QPixmap pixmap(size());
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
        drawFrame(painter, rect(), 1, borderColor);
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
