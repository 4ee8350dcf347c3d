#include "controls/OverlayShape.h"

#include <QPainter>

namespace kaart {

OverlayShape::OverlayShape(Kind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void OverlayShape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect outline = rect().adjusted(0, 0, -1, -1);
    const bool dashed = kind_ != Kind::Ellipse;
    for (const QColor& colour : {QColor(Qt::white), QColor(40, 40, 40)}) {
        QPen pen(colour, 1);
        if (dashed && colour != Qt::white) {
            pen.setDashPattern({4, 4});
        }
        painter.setPen(pen);
        switch (kind_) {
        case Kind::Rectangle:
            painter.drawRect(outline);
            break;
        case Kind::Ellipse:
            painter.drawEllipse(outline);
            break;
        case Kind::Line:
            painter.drawLine(rect().topLeft(), rect().bottomRight());
            break;
        }
    }
}

} // namespace kaart
