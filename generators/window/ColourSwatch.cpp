#include "generators/window/ColourSwatch.h"

#include "controls/Palette.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace kaart {

ColourSwatch::ColourSwatch(ColorRef colour, QWidget* parent) : QLabel(parent), colour_(colour) {
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
    setColour(colour);
}

void ColourSwatch::setColour(ColorRef colour) {
    colour_ = colour;
    setBackColor(*this, colour);
}

void ColourSwatch::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit clicked();
    }
}

void ColourSwatch::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit clicked();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

} // namespace kaart
