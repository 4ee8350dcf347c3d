#include "controls/OverlayShape.h"

#include "controls/Shades.h"

#include <QImage>
#include <QPainter>

namespace kaart {

namespace {

constexpr QRgb dark = qRgb(40, 40, 40);
constexpr int dash = 4;

/// Of lines that run straight: dark and white by turns, and whole pixels at any magnification.
QBrush dashes() {
    QImage tile(2 * dash, 2 * dash, QImage::Format_RGB32);
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            tile.setPixel(x, y, (x + y) % tile.width() < dash ? dark : qRgb(255, 255, 255));
        }
    }
    return tile;
}

} // namespace

OverlayShape::OverlayShape(Kind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void OverlayShape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    switch (kind_) {
    case Kind::Rectangle:
        fillFrame(painter, rect(), 1, dashes());
        break;
    case Kind::Line:
        painter.fillRect(rect(), dashes());
        break;
    case Kind::Ellipse:
        for (const QColor& colour : {QColor(Qt::white), QColor(dark)}) {
            painter.setPen(colour);
            painter.drawEllipse(rect().adjusted(0, 0, -1, -1));
        }
        break;
    }
}

} // namespace kaart
