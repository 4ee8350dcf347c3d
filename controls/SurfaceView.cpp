#include "controls/SurfaceView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>

namespace kaart {

SurfaceView::SurfaceView(QWidget* parent) : QWidget(parent), own_(1, 1), shown_(&own_) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SurfaceView::show(const PixelSurface& shown) {
    shown_ = &shown;
    resize(shown.bounds().size());
    update();
}

void SurfaceView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect exposed = event->rect();
    painter.drawImage(exposed, shown_->Image(), exposed);
}

void SurfaceView::resizeEvent(QResizeEvent* event) {
    if (shown_ == &own_) {
        own_.ParentUnit = ScaleUnit::Pixels;
        own_.setSize(std::max(1, event->size().width()), std::max(1, event->size().height()));
    }
}

} // namespace kaart
