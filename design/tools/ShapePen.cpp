#include "design/tools/ShapePen.h"

#include "design/surface/GraphicsCalls.h"
#include "design/surface/Numbers.h"

#include <algorithm>
#include <numbers>

namespace kaart {

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
/// Kept: single precision and a little short of pi.
constexpr double halfTurn = 3.14F;

} // namespace

void ShapePen::path(std::initializer_list<QPoint> points) {
    for (const QPoint* to = points.begin() + 1; to < points.end(); ++to) {
        const QPoint& from = *(to - 1);
        pic_.Line(x(from.x()), y(from.y()), x(to->x()), y(to->y()), colour());
    }
}

void ShapePen::rectangle(QPoint from, QPoint to) {
    pic_.Line(x(from.x()), y(from.y()), x(to.x()), y(to.y()), colour(),
              style_.cut ? LineMode::FilledBox : LineMode::Box);
}

template <typename Draw>
void ShapePen::closed(Draw draw) {
    if (style_.cut) {
        pic_.FillStyle = Fill::Solid;
        pic_.FillColor = white;
    }
    draw();
    pic_.FillStyle = Fill::Transparent;
}

void ShapePen::roundedRectangle() {
    closed([this] {
        const ColorRef textColour = pic_.ForeColor;
        pic_.ForeColor = colour();
        RoundRect(pic_.hDC(), roundEven(x(0)), roundEven(y(0)), roundEven(x(8)), roundEven(y(8)),
                  style_.corner, style_.corner);
        pic_.ForeColor = textColour;
    });
}

void ShapePen::ellipse(QPoint centre, double size) {
    closed([&] { circle(centre, size, fullTurn); });
}

void ShapePen::upperArc(QPoint centre, double size) {
    circle(centre, size, halfTurn);
}

void ShapePen::circle(QPoint centre, double size, double end) {
    const double radius = std::max(box_.width, box_.height) / 2;
    pic_.Circle(x(centre.x()), y(centre.y()), radius * size, colour(), 0, end,
                box_.height / box_.width);
}

void ShapePen::raster() {
    const int step = std::max(1, style_.grid);
    for (double along = 0; along <= box_.width; along += step) {
        pic_.Line(box_.left + along, y(0), box_.left + along, y(8), colour());
    }
    // The figure's rule draws these anew for every upright line, which gives the same pixels.
    for (double down = 0; down <= box_.height; down += step) {
        pic_.Line(x(0), box_.top + down, x(8), box_.top + down, colour());
    }
}

} // namespace kaart
