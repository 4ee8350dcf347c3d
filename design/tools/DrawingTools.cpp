#include "design/tools/DrawingTools.h"

#include "design/surface/GraphicsCalls.h"
#include "design/tools/RubberBand.h"

namespace kaart {

namespace {

void invertLine(PixelSurface& pic, const Design& design, double x, double y) {
    pic.DrawMode = PenMode::Invert;
    pic.Line(design.BeginX, design.BeginY, x, y, black);
    pic.DrawMode = PenMode::Copy;
}

} // namespace

void FreeHandTool::move(Design& design, QPoint at) const {
    design.changeFurther([&](PixelSurface& pic) {
        pic.Line(design.BeginX, design.BeginY, at.x(), at.y(), design.Tekenkleur);
    });
    design.BeginX = at.x();
    design.BeginY = at.y();
}

void StraightLineTool::press(Design& design, QPoint at) const {
    design.VorigeX = at.x();
    design.VorigeY = at.y();
    // A pen wider than 1 shows a dot of no length, and the first move wipes one.
    design.changeFurther([&](PixelSurface& pic) { invertLine(pic, design, at.x(), at.y()); });
}

void StraightLineTool::move(Design& design, QPoint at) const {
    design.changeFurther([&](PixelSurface& pic) {
        invertLine(pic, design, design.VorigeX, design.VorigeY);
        invertLine(pic, design, at.x(), at.y());
    });
}

void StraightLineTool::release(Design& design, QPoint at) const {
    design.changeFurther([&](PixelSurface& pic) {
        invertLine(pic, design, design.VorigeX, design.VorigeY);
        pic.Line(design.BeginX, design.BeginY, at.x(), at.y(), design.Tekenkleur);
    });
}

void FillTool::press(Design& design, QPoint at) const {
    design.changeFurther([&](PixelSurface& pic) {
        pic.FillColor = design.Vulkleur;
        pic.FillStyle = Fill::Solid;
        ExtFloodFill(pic.hDC(), at.x(), at.y(), pic.Point(at.x(), at.y()), FloodType::Surface);
        pic.FillStyle = Fill::Transparent;
    });
}

void EraserTool::stamp(Design& design, QPoint at) {
    constexpr double rim = 2;
    const double half = design.GomGrootte / 2.0;
    const ColorRef colour = design.GummenInVulkleur ? design.Vulkleur : white;
    design.changeFurther([&](PixelSurface& pic) {
        pic.FillColor = colour;
        pic.FillStyle = Fill::Solid;
        // Kept: the disc lies up and left of the mouse, which is the corner of Gom.
        pic.Circle(at.x() - half, at.y() - half, half - rim, colour);
        pic.FillStyle = Fill::Transparent;
    });
}

void EraserTool::press(Design& design, QPoint at) const {
    design.Gom.Visible = true;
    design.Gom.Width = design.GomGrootte;
    design.Gom.Height = design.GomGrootte;
    design.showOverlays();
    stamp(design, at);
}

void EraserTool::move(Design& design, QPoint at) const {
    stamp(design, at);
}

void SelectionTool::press(Design& design, QPoint at) const {
    startRubberBand(design, at);
}

void SelectionTool::move(Design& design, QPoint at) const {
    stretchRubberBand(design, at);
    labelRubberBand(design, design.Layer.Width, design.Layer.Height);
}

void SelectionTool::release(Design& design, QPoint) const {
    design.SelectieBreedte = design.Layer.Width;
    design.SelectieHoogte = design.Layer.Height;
    emit design.selectionMade();
}

} // namespace kaart
