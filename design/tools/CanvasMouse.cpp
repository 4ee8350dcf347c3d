#include "design/tools/CanvasMouse.h"

#include "design/tools/TextPlacing.h"

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
    // While a text hangs, the release places it and would end no drag.
    if (button == Button::Left && !design_.TekstHangt) {
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
    moveTextLine(design_, at);
    moveGom(at);
    if (dragging()) {
        drag_->move(design_, at);
        design_.VorigeX = at.x();
        design_.VorigeY = at.y();
    }
}

void CanvasMouse::release(Button button, QPoint at) {
    if (design_.TekstHangt) {
        // Kept: any button places it, and nothing else of a release happens, not even that of a
        // tool which was chosen meanwhile.
        drag_ = nullptr;
        hideMarks(false);
        placeTextLine(design_, at);
        return;
    }
    if (button != Button::Left || !dragging()) {
        return;
    }
    const Tool& tool = *drag_;
    drag_ = nullptr;
    if (design_.TekenModus != noToolMode) {
        design_.Gewijzigd = true;
    }
    hideMarks(tool.keepsLayer());
    tool.release(design_, at);
}

void CanvasMouse::hideMarks(bool butLayer) {
    design_.Layer.Visible = butLayer;
    design_.Gom.Visible = false;
    design_.XYcor.Visible = false;
    design_.showOverlays();
}

void CanvasMouse::moveGom(QPoint at) {
    design_.Gom.Left = at.x() - design_.GomGrootte;
    design_.Gom.Top = at.y() - design_.GomGrootte;
    if (design_.Gom.Visible) {
        design_.showOverlays();
    }
}

} // namespace kaart
