#include "generators/Polygon.h"

#include <cmath>

namespace kaart {

namespace {

constexpr double pi = 3.14159265358979;
constexpr double verticalSlope = 301.59289474461985;

} // namespace

void RPoint(float angle, float cx, float cy, float px, float py, float& x, float& y, float& r,
            float aspect) {
    const double wide = aspect > 1 ? aspect : 1;
    const double flat = aspect < 1 ? aspect : 1;
    const double dx = (static_cast<double>(px) - cx) * wide;
    const double dy = 1 / flat * (static_cast<double>(py) - cy);
    if (dx == 0 && dy == 0) {
        r = 0;
        x = px;
        y = py;
        return;
    }
    const double distance = std::sqrt(dx * dx + dy * dy);
    const double slope = dx == 0 ? verticalSlope : dy / dx;
    double turned = std::atan(slope) + angle;
    if (dx < 0 || (dx == 0 && dy < 0)) {
        turned += pi;
    }
    r = static_cast<float>(distance);
    x = static_cast<float>(1 / wide * (std::cos(turned) * distance) + cx);
    y = static_cast<float>(std::sin(turned) * distance * flat + cy);
}

std::vector<QPointF> polygonCorners(float& rotation, float aspect, float cx, float cy, float radius,
                                    int sides) {
    std::vector<QPointF> corners;
    for (int i = 1; i <= sides; ++i) {
        float x = 0;
        float y = 0;
        float r = 0;
        RPoint(rotation, cx, cy, cx - radius, cy, x, y, r, aspect);
        corners.emplace_back(x, y);
        rotation = static_cast<float>(rotation + 2 * pi / sides);
    }
    return corners;
}

void RPolygoneRegulier(PixelSurface& surface, float& rotation, float aspect, float cx, float cy,
                       float radius, int sides, ColorRef color) {
    const std::vector<QPointF> corners = polygonCorners(rotation, aspect, cx, cy, radius, sides);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPointF& from = corners[i];
        const QPointF& to = corners[(i + 1) % corners.size()];
        surface.Line(from.x(), from.y(), to.x(), to.y(), color);
    }
}

} // namespace kaart
