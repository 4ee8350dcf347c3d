#pragma once

#include "design/tools/ShapeTable.h"
#include "design/tools/Tool.h"

namespace kaart {

/// Drags a rectangle down and right and draws a figure into it at the release, in Tekenkleur. A
/// release that is not both right of and below the press draws nothing.
class ShapeTool final : public Tool {
public:
    /// The row is one of the shape table.
    explicit ShapeTool(const ShapeRow& shape) : shape_(shape) {}

    void press(Design& design, QPoint at) const override;
    void move(Design& design, QPoint at) const override;
    void release(Design& design, QPoint at) const override;

private:
    const ShapeRow& shape_;
};

/// The tool for the figure of a value of TekenModus, nullptr where it stands for none.
const Tool* shapeTool(int tekenModus);

} // namespace kaart
