#include "design/window/Canvas.h"

#include "controls/KeyPointer.h"
#include "controls/Palette.h"
#include "design/surface/Numbers.h"
#include "design/tools/Rulers.h"

#include <QMouseEvent>

namespace kaart {

namespace {

CanvasMouse::Button buttonOf(const QMouseEvent& event) {
    switch (event.button()) {
    case Qt::LeftButton:
        return CanvasMouse::Button::Left;
    case Qt::RightButton:
        return CanvasMouse::Button::Right;
    default:
        return CanvasMouse::Button::Other;
    }
}

void placeMark(OverlayShape& shape, const Overlay& mark) {
    shape.setGeometry(roundEven(mark.Left), roundEven(mark.Top), roundEven(mark.Width),
                      roundEven(mark.Height));
    shape.setVisible(mark.Visible && mark.Width > 0 && mark.Height > 0);
}

} // namespace

Canvas::Canvas(Design& design, QWidget* parent)
    : SurfaceView(parent),
      design_(design),
      mouse_(design),
      topMaat_(this),
      leftMaat_(this),
      horLijn_(OverlayShape::Kind::Line, this),
      verLijn_(OverlayShape::Kind::Line, this),
      layer_(OverlayShape::Kind::Rectangle, this),
      gom_(OverlayShape::Kind::Ellipse, this),
      xyCor_(this) {
    setObjectName(QStringLiteral("Pic"));
    setAccessibleName(QStringLiteral("Ontwerp"));
    topMaat_.setObjectName(QStringLiteral("TopMaat"));
    leftMaat_.setObjectName(QStringLiteral("LeftMaat"));
    horLijn_.setObjectName(QStringLiteral("HorLijn"));
    verLijn_.setObjectName(QStringLiteral("VerLijn"));
    layer_.setObjectName(QStringLiteral("Layer"));
    gom_.setObjectName(QStringLiteral("Gom"));
    xyCor_.setObjectName(QStringLiteral("XYcor"));
    xyCor_.setAttribute(Qt::WA_TransparentForMouseEvents);
    setBackColor(xyCor_, rulerColor);
    xyCor_.hide();
    showRulers(false);
    setMouseTracking(true);
    // A click takes the focus, too: else a text field left behind would keep the shortcuts.
    new KeyPointer(*this);
    setCursor(Qt::CrossCursor);

    connect(&design, &Design::picChanged, this, [this](const QRect& pixels) { update(pixels); });
    connect(&design, &Design::orientationChanged, this, &Canvas::takeSize);
    connect(&design, &Design::overlaysChanged, this, &Canvas::placeMarks);
    takeSize();
}

void Canvas::takeSize() {
    show(design_.Pic());
    TekenMaat(topMaat_.surface(), leftMaat_.surface(), size());
    topMaat_.resize(width(), rulerThickness);
    leftMaat_.resize(rulerThickness, height());
    horLijn_.setGeometry(0, 0, width(), 1);
    verLijn_.setGeometry(0, 0, 1, height());
}

void Canvas::placeMarks() {
    placeMark(layer_, design_.Layer);
    placeMark(gom_, design_.Gom);
    xyCor_.setText(design_.XYcor.Caption);
    xyCor_.adjustSize();
    xyCor_.move(roundEven(design_.XYcor.Left), roundEven(design_.XYcor.Top));
    xyCor_.setVisible(design_.XYcor.Visible);
}

void Canvas::showCrossHair(bool shown) {
    horLijn_.setVisible(shown);
    verLijn_.setVisible(shown);
}

void Canvas::showRulers(bool shown) {
    topMaat_.setVisible(shown);
    leftMaat_.setVisible(shown);
}

void Canvas::mousePressEvent(QMouseEvent* event) {
    mouse_.press(buttonOf(*event), pixelAt(*event));
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = pixelAt(*event);
    emit mouseMoved(at);
    horLijn_.move(0, at.y());
    verLijn_.move(at.x(), 0);
    mouse_.move(at);
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
    mouse_.release(buttonOf(*event), pixelAt(*event));
}

} // namespace kaart
