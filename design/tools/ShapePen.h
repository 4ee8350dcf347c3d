#pragma once

#include "design/surface/PixelSurface.h"

#include <QPoint>

#include <initializer_list>

namespace kaart {

/// The box of a figure, pixels: the dragged points themselves, or one more to the right and below.
struct ShapeBox {
    double left = 0;
    double top = 0;
    double width = 0; ///< above 0, as is the height
    double height = 0;
};

struct ShapeStyle {
    ColorRef colour = black;
    bool cut = false; ///< closed figures become white holes without an outline in `colour`
    int corner = 30;  ///< of a rounded rectangle, pixels
    int grid = 10;    ///< distance of the lines of a raster, pixels; below 1 counts as 1
};

/// Draws figures into a box with the surface's own pen width. Points are eighths of the box, from
/// (0, 0) at its left top to (8, 8); they may fall between two pixels, and the surface rounds them.
class ShapePen {
public:
    ShapePen(PixelSurface& pic, const ShapeBox& box, const ShapeStyle& style)
        : pic_(pic), box_(box), style_(style) {}

    /// Lines from point to point.
    void path(std::initializer_list<QPoint> points);
    void rectangle(QPoint from, QPoint to);
    /// Over the whole box. The platform's call decides what a corner beyond the box becomes.
    void roundedRectangle();
    /// An ellipse in the proportions of the box and `size` times as large. Points are its centre.
    void ellipse(QPoint centre, double size);
    void upperArc(QPoint centre, double size);
    /// Upright and level lines at equal distances, from the left top on.
    void raster();

private:
    double x(int eighths) const { return box_.left + eighths * box_.width / 8; }
    double y(int eighths) const { return box_.top + eighths * box_.height / 8; }
    ColorRef colour() const { return style_.cut ? white : style_.colour; }
    void circle(QPoint centre, double size, double end);
    template <typename Draw>
    void closed(Draw draw);

    PixelSurface& pic_;
    ShapeBox box_;
    ShapeStyle style_;
};

} // namespace kaart
