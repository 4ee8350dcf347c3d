#pragma once

#include "design/surface/PixelSurface.h"

#include <QPointF>

#include <vector>

namespace kaart {

/// Turns (px, py) by `angle` radians round (cx, cy), clockwise on the screen. `r` becomes the
/// distance between the two. `aspect`, above 0, is height to width of the ellipse that it turns on;
/// the distance is measured where this is a circle.
void RPoint(float angle, float cx, float cy, float px, float py, float& x, float& y, float& r,
            float aspect);

/// The corners of a regular polygon, the first one the left-most point of its circle turned by
/// `rotation`, the others clockwise. A negative radius mirrors it through its centre. `rotation`
/// grows by a full turn. Fewer than one side gives no corner.
std::vector<QPointF> polygonCorners(float& rotation, float aspect, float cx, float cy, float radius,
                                    int sides);

/// Draws that polygon with the surface's pen.
void RPolygoneRegulier(PixelSurface& surface, float& rotation, float aspect, float cx, float cy,
                       float radius, int sides, ColorRef color);

} // namespace kaart
