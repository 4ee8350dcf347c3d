#include "design/tools/CanvasMouse.h"

namespace kaart {

namespace {

constexpr int noToolMode = 999;

} // namespace

void CanvasMouse::press(Button button, QPoint at) {
    if (dragging()) {
        return;
    }
    design_.takeUndo();
    design_.BeginX = at.x();
    design_.BeginY = at.y();
    moveGom(at);
    design_.setDrawWidth(design_.LijnDikte);
    if (button == Button::Left) {
        drag_ = &toolFor(design_.TekenModus);
        drag_->press(design_, at);
    } else if (button == Button::Right) {
        const ColorRef colour = design_.Pic().Point(at.x(), at.y());
        if (colour != noColor) {
            design_.setVulkleur(colour);
        }
    }
}

void CanvasMouse::move(QPoint at) {
    moveGom(at);
    if (dragging()) {
        drag_->move(design_, at);
        design_.VorigeX = at.x();
        design_.VorigeY = at.y();
    }
}

void CanvasMouse::release(Button button, QPoint at) {
    if (button != Button::Left || !dragging()) {
        return;
    }
    const Tool& tool = *drag_;
    drag_ = nullptr;
    if (design_.TekenModus != noToolMode) {
        design_.Gewijzigd = true;
    }
    design_.Layer.Visible = tool.keepsLayer();
    design_.Gom.Visible = false;
    design_.XYcor.Visible = false;
    design_.showOverlays();
    tool.release(design_, at);
}

void CanvasMouse::moveGom(QPoint at) {
    design_.Gom.Left = at.x() - design_.GomGrootte;
    design_.Gom.Top = at.y() - design_.GomGrootte;
    if (design_.Gom.Visible) {
        design_.showOverlays();
    }
}

} // namespace kaart
