#pragma once

#include "controls/OverlayShape.h"
#include "controls/SurfaceView.h"
#include "design/session/Overlays.h"

namespace kaart {

class Design;

/// A surface on which the left mouse button drags out the frame `SelectShape`, down and right from
/// where it went down, which is also the design's BeginX and BeginY. A click without a drag leaves
/// it 0 x 0 pixels. A square frame is as high as it is wide, wherever the mouse goes vertically; a
/// click makes it 1 x 1.
class SelectView : public SurfaceView {
    Q_OBJECT

public:
    enum class Frame { Free, Square };

    /// A white surface of that size in pixels.
    SelectView(Design& design, Frame frame, const QSize& size, QWidget* parent);

    const Overlay& SelectShape() const { return selected_; } ///< pixels
    void hideSelection();
    /// What the frame surrounds; white where it reaches beyond the surface. Null if it surrounds
    /// nothing or isn't there.
    QImage selection() const;

signals:
    void stretched();             ///< the frame has another size
    void selected();              ///< the left button came up
    void rightPressed(QPoint at); ///< pixels

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void stretchTo(QPoint at);
    void placeShape();

    Design& design_;
    const Frame frame_;
    Overlay selected_;
    OverlayShape shape_;
};

} // namespace kaart
