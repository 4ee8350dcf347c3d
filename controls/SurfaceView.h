#pragma once

#include "design/surface/PixelSurface.h"

#include <QImage>
#include <QMouseEvent>
#include <QWidget>

#include <cmath>

namespace kaart {

/// The pixel of a view that the mouse is in. On a magnified screen it may be anywhere within one,
/// and the nearest whole point (toPoint) would be the next pixel.
inline QPoint pixelAt(const QMouseEvent& event) {
    const QPointF at = event.position();
    return {static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y()))};
}

/// Shows a surface, pixel for pixel, at the widget's top left; on a magnified screen each pixel is
/// a block with hard edges. The view has a surface of its own that follows its size (in pixels, at
/// least 1 x 1), or shows one that lives elsewhere and that outlives the view.
class SurfaceView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QImage Image READ Image)

public:
    explicit SurfaceView(QWidget* parent = nullptr);

    /// The view's own surface; drawing is shown at the next Refresh().
    PixelSurface& surface() { return own_; }
    /// Shows another surface from now on; its size becomes the view's.
    void show(const PixelSurface& shown);
    using QWidget::show;

    QImage Image() const { return shown_->Image(); }
    /// Shows what was drawn on the own surface since the last time.
    void Refresh() { update(own_.Refresh()); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    PixelSurface own_;
    const PixelSurface* shown_;
};

} // namespace kaart
