#include "design/tools/RubberBand.h"

#include <algorithm>

namespace kaart {

namespace {

constexpr int labelAbove = 15;
constexpr int labelBefore = 3;

} // namespace

void startRubberBand(Design& design, QPoint at) {
    design.XYcor.Left = at.x() - labelBefore;
    design.XYcor.Top = at.y() - labelAbove;
    design.XYcor.Visible = true;
    design.Layer = {
        .Visible = true, .Left = static_cast<double>(at.x()), .Top = static_cast<double>(at.y())};
    labelRubberBand(design, 0, 0);
}

void stretchRubberBand(Design& design, QPoint at) {
    design.Layer.Left = design.BeginX;
    design.Layer.Top = design.BeginY;
    design.Layer.Width = std::max<double>(at.x(), design.BeginX) - design.BeginX + 1;
    design.Layer.Height = std::max<double>(at.y(), design.BeginY) - design.BeginY + 1;
    design.Gewijzigd = true;
}

void labelRubberBand(Design& design, double x, double y) {
    design.XYcor.Caption = QStringLiteral(" %1,%2 ").arg(x).arg(y);
    design.showOverlays();
}

} // namespace kaart
