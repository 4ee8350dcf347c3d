#pragma once

#include "controls/SurfaceView.h"
#include "design/session/Design.h"

#include <QMainWindow>
#include <QMenu>

namespace kaart {

/// The view `ClipPic` of the floating picture, above the canvas `Pic` and clipped by it, with a
/// thin frame of one pixel on each side outside the picture, orange under the keyboard. The left
/// button drags it, over any edge, and so do the arrow keys; the release of the right button,
/// the menu key or Enter opens the pop-up `Plakken`.
class FloatPanel : public SurfaceView {
    Q_OBJECT

public:
    FloatPanel(QMainWindow& window, Design& design);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void follow();
    void popUp(const QPoint& at);

    Design& design_;
    QMenu& menu_;
};

} // namespace kaart
