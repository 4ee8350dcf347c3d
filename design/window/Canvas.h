#pragma once

#include "controls/OverlayShape.h"
#include "controls/SurfaceView.h"
#include "design/session/Design.h"
#include "design/tools/CanvasMouse.h"

#include <QLabel>

namespace kaart {

/// The design on the screen: the view `Pic` with its marks, rulers and cross hair above it. Turns
/// mouse events into those of the tools; keeps no drawing of its own.
class Canvas : public SurfaceView {
    Q_OBJECT

public:
    Canvas(Design& design, QWidget* parent);

    void showCrossHair(bool shown);
    void showRulers(bool shown);
    bool dragging() const { return mouse_.dragging(); }

signals:
    void mouseMoved(const QPoint& at);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void takeSize();
    void placeMarks();

    Design& design_;
    CanvasMouse mouse_;
    SurfaceView topMaat_;
    SurfaceView leftMaat_;
    OverlayShape horLijn_;
    OverlayShape verLijn_;
    OverlayShape layer_;
    OverlayShape gom_;
    QLabel xyCor_;
};

} // namespace kaart
