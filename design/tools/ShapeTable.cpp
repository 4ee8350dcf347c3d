#include "design/tools/ShapeTable.h"

#include <array>

namespace kaart {

namespace {

constexpr auto Drag = ShapeExtent::Drag;
constexpr auto Layer = ShapeExtent::Layer;

constexpr QPoint leftTop(0, 0);
constexpr QPoint centre(4, 4);
constexpr QPoint rightBottom(8, 8);

void diamond(ShapePen& pen) {
    pen.path({{0, 4}, {4, 0}, {8, 4}, {4, 8}, {0, 4}});
}

void heart(ShapePen& pen) {
    pen.upperArc({2, 2}, 0.5);
    pen.upperArc({6, 2}, 0.5);
    pen.path({{8, 2}, {4, 8}, {0, 2}});
}

void quatro(ShapePen& pen) {
    for (const QPoint& middle : {QPoint(2, 2), QPoint(6, 2), QPoint(2, 6), QPoint(6, 6)}) {
        pen.ellipse(middle, 0.5);
    }
}

void openStar(ShapePen& pen) {
    pen.path({{4, 0}, {5, 3}, {8, 4}, {5, 5}, {4, 8}, {3, 5}, {0, 4}, {3, 3}, {4, 0}});
}

void star(ShapePen& pen) {
    openStar(pen);
    pen.path({{0, 4}, {8, 4}});
    pen.path({{4, 0}, {4, 8}});
    pen.path({{5, 3}, {3, 5}});
    pen.path({{3, 3}, {5, 5}});
}

void doubleTriangle(ShapePen& pen) {
    pen.path({{0, 2}, {8, 2}, {4, 8}, {0, 2}});
    pen.path({{0, 6}, {8, 6}, {4, 0}, {0, 6}});
}

constexpr std::array table = {
    ShapeRow{"Rectangle", Drag, true, [](ShapePen& pen) { pen.rectangle(leftTop, rightBottom); }},
    ShapeRow{"Rounded Rectangle", Drag, true, [](ShapePen& pen) { pen.roundedRectangle(); }},
    ShapeRow{"Ellipse", Drag, true, [](ShapePen& pen) { pen.ellipse(centre, 1); }},
    ShapeRow{"Triangle", Drag, false,
             [](ShapePen& pen) {
                 pen.path({{0, 8}, {4, 0}, {8, 8}, {0, 8}});
             }},
    ShapeRow{"Square", Drag, false, diamond},
    ShapeRow{"Pentagon", Drag, false,
             [](ShapePen& pen) {
                 pen.path({{0, 2}, {4, 0}, {8, 2}, {6, 8}, {2, 8}, {0, 2}});
             }},
    ShapeRow{"Hexagon", Drag, false,
             [](ShapePen& pen) {
                 pen.path({{0, 2}, {4, 0}, {8, 2}, {8, 6}, {4, 8}, {0, 6}, {0, 2}});
             }},
    ShapeRow{"Heart", Drag, false, heart},
    ShapeRow{"Diamond", Drag, false,
             [](ShapePen& pen) {
                 pen.upperArc(centre, 1);
                 pen.path({{8, 4}, {4, 8}, {0, 4}});
             }},
    ShapeRow{"Quatro", Drag, false, quatro},
    ShapeRow{"Raster", Drag, false, [](ShapePen& pen) { pen.raster(); }},
    ShapeRow{"Open Star", Layer, false, openStar},
    ShapeRow{"Star", Layer, false, star},
    ShapeRow{"Rectangle / Square", Layer, false,
             [](ShapePen& pen) {
                 pen.rectangle({1, 1}, {7, 7});
                 diamond(pen);
             }},
    ShapeRow{"Double Trangle", Layer, false, doubleTriangle},
    ShapeRow{"Tree", Layer, false,
             [](ShapePen& pen) {
                 pen.path({{4, 0}, {8, 8}, {0, 2}, {8, 2}, {0, 8}, {4, 0}});
             }},
};

} // namespace

std::span<const ShapeRow> shapeTable() {
    return table;
}

} // namespace kaart
