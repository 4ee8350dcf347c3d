#include "design/tools/ShapeTool.h"

#include "design/tools/RubberBand.h"

#include <deque>

namespace kaart {

void ShapeTool::press(Design& design, QPoint at) const {
    startRubberBand(design, at);
}

void ShapeTool::move(Design& design, QPoint at) const {
    stretchRubberBand(design, at);
    labelRubberBand(design, design.Layer.Width - 1, design.Layer.Height - 1);
}

void ShapeTool::release(Design& design, QPoint at) const {
    ShapeBox box{design.BeginX, design.BeginY, at.x() - design.BeginX, at.y() - design.BeginY};
    if (box.width <= 0 || box.height <= 0) {
        return;
    }
    if (shape_.extent == ShapeExtent::Layer) {
        box.width = design.Layer.Width;
        box.height = design.Layer.Height;
    }
    const ShapeStyle style{.colour = design.Tekenkleur,
                           .cut = shape_.canBeCut && design.VormKnippen,
                           .corner = design.RondeHoek,
                           .grid = design.RasterAfstand};
    design.changeFurther([&](PixelSurface& pic) {
        ShapePen pen(pic, box, style);
        shape_.draw(pen);
    });
}

const Tool* shapeTool(int tekenModus) {
    static const auto tools = [] {
        std::deque<ShapeTool> all; // of tools that cannot be moved
        for (const ShapeRow& row : shapeTable()) {
            all.emplace_back(row);
        }
        return all;
    }();
    const auto row = static_cast<std::size_t>(tekenModus - firstShape - 1);
    return row < tools.size() ? &tools[row] : nullptr;
}

} // namespace kaart
