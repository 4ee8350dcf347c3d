#pragma once

#include "design/tools/ShapePen.h"

#include <span>

namespace kaart {

/// What a figure's eighths are parts of.
enum class ShapeExtent {
    Drag, ///< from the pressed point to the released one
    Layer ///< the rubber rectangle, which is one pixel wider and higher
};

/// One figure of the pop-up Shapes.
struct ShapeRow {
    const char* caption;
    ShapeExtent extent;
    bool canBeCut; ///< obeys Check2 "Vorm knippen"
    void (*draw)(ShapePen& pen);
};

/// The index of the first row in the menu array Vormen; its TekenModus is one more.
inline constexpr int firstShape = 1;

/// All figures, in menu order. Kept: some captions are misspelled or name another figure.
std::span<const ShapeRow> shapeTable();

} // namespace kaart
