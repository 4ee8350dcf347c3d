#include "generators/window/SelectView.h"

#include "controls/KeyPointer.h"
#include "design/session/Design.h"
#include "design/surface/DragRect.h"
#include "design/surface/Numbers.h"

#include <QMouseEvent>

namespace kaart {

SelectView::SelectView(Design& design, Frame frame, const QSize& size, QWidget* parent)
    : SurfaceView(parent),
      design_(design),
      frame_(frame),
      shape_(OverlayShape::Kind::Rectangle, this) {
    resize(size);
    surface().setSize(size.width(), size.height());
    shape_.setObjectName(QStringLiteral("SelectShape"));
    setCursor(Qt::CrossCursor);
    new KeyPointer(*this);
}

void SelectView::hideSelection() {
    selected_.Visible = false;
    placeShape();
}

QImage SelectView::selection() const {
    if (!selected_.Visible) {
        return {};
    }
    PixelSurface cut(roundEven(selected_.Width), roundEven(selected_.Height));
    cut.PaintPicture(Image(), 0, 0, selected_.Width, selected_.Height, selected_.Left,
                     selected_.Top, selected_.Width, selected_.Height);
    return cut.Image();
}

void SelectView::mousePressEvent(QMouseEvent* event) {
    const QPoint at = pixelAt(*event);
    if (event->button() == Qt::RightButton) {
        emit rightPressed(at);
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    design_.BeginX = at.x();
    design_.BeginY = at.y();
    // Kept: a square frame starts at x from both edges, which the first move sets right.
    const double top = frame_ == Frame::Square ? at.x() : at.y();
    selected_ = {.Visible = true, .Left = static_cast<double>(at.x()), .Top = top};
    placeShape();
}

void SelectView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton) && selected_.Visible) {
        stretchTo(pixelAt(*event));
    }
}

void SelectView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !selected_.Visible) {
        return;
    }
    if (frame_ == Frame::Square && selected_.Width == 0) {
        stretchTo(pixelAt(*event));
    }
    emit selected();
}

void SelectView::stretchTo(QPoint at) {
    const QPoint start(roundEven(design_.BeginX), roundEven(design_.BeginY));
    const QSize size = dragRect(start, at).size();
    selected_ = {.Visible = true,
                 .Left = design_.BeginX,
                 .Top = design_.BeginY,
                 .Width = static_cast<double>(size.width()),
                 .Height =
                     static_cast<double>(frame_ == Frame::Square ? size.width() : size.height())};
    placeShape();
    emit stretched();
}

void SelectView::placeShape() {
    shape_.setGeometry(roundEven(selected_.Left), roundEven(selected_.Top),
                       roundEven(selected_.Width), roundEven(selected_.Height));
    shape_.setVisible(selected_.Visible);
}

} // namespace kaart
