#include "design/surface/Rasteriser.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace kaart {

namespace {

using Wide = std::int64_t;

Wide ceilDiv(Wide dividend, Wide divisor) {
    return dividend / divisor + (dividend % divisor > 0 ? 1 : 0);
}

/// One of the two axes of a line: where it starts and how far it goes.
struct Axis {
    int start;
    Wide length;
    int low;  ///< first coordinate of the mask on this axis
    int high; ///< last one
};

/// Calls plot(major, minor) for the visible pixels of a thin line.
template <typename Plot>
void walkThinLine(const Axis& major, const Axis& minor, Plot plot) {
    const Wide n = std::llabs(major.length);
    const int step = major.length < 0 ? -1 : 1;
    const Wide nearEdge = step > 0 ? Wide{major.low} - major.start : Wide{major.start} - major.high;
    const Wide farEdge = step > 0 ? Wide{major.high} - major.start : Wide{major.start} - major.low;
    const Wide last = std::min(n - 1, farEdge);
    for (Wide i = std::max<Wide>(0, nearEdge); i <= last; ++i) {
        const Wide offset = ceilDiv(2 * minor.length * i - n, 2 * n);
        plot(static_cast<int>(major.start + step * i), static_cast<int>(minor.start + offset));
    }
}

void addThinLine(SpanMask& mask, QPoint from, QPoint to) {
    const QRect& area = mask.bounds();
    const Axis x{from.x(), Wide{to.x()} - from.x(), area.left(), area.right()};
    const Axis y{from.y(), Wide{to.y()} - from.y(), area.top(), area.bottom()};
    if (std::llabs(x.length) >= std::llabs(y.length)) {
        walkThinLine(x, y, [&mask](int px, int py) { mask.add(py, px, px + 1); });
    } else {
        walkThinLine(y, x, [&mask](int py, int px) { mask.add(py, px, px + 1); });
    }
}

/// The capsule of a wide pen, in half pixels, so that an even width's centre line is whole.
class Capsule {
public:
    Capsule(QPoint from, QPoint to, int penWidth)
        : lean_(penWidth % 2 == 0 ? 1 : 0),
          ax_(2.0 * from.x() - lean_),
          ay_(2.0 * from.y() - lean_),
          dx_(2.0 * (static_cast<double>(to.x()) - from.x())),
          dy_(2.0 * (static_cast<double>(to.y()) - from.y())),
          squaredLength_(dx_ * dx_ + dy_ * dy_),
          width_(penWidth) {}

    bool contains(int x, int y) const {
        const double px = 2.0 * x - ax_;
        const double py = 2.0 * y - ay_;
        const double along = px * dx_ + py * dy_;
        const double reach = static_cast<double>(width_) * width_;
        if (along <= 0) {
            return px * px + py * py <= reach;
        }
        if (along >= squaredLength_) {
            const double qx = px - dx_;
            const double qy = py - dy_;
            return qx * qx + qy * qy <= reach;
        }
        const double across = px * dy_ - py * dx_;
        return across * across <= reach * squaredLength_;
    }

    /// A column of row y that the capsule's own axis passes nearest to.
    double axisColumn(int y) const {
        const double py = 2.0 * y - ay_;
        const double part = dy_ == 0 ? 0 : std::clamp(py / dy_, 0.0, 1.0);
        return (ax_ + part * dx_) / 2;
    }

private:
    int lean_;
    double ax_, ay_, dx_, dy_;
    double squaredLength_;
    int width_;
};

/// The end of the capsule in row y between an inner column and a column that lies outside of it.
int findEdge(const Capsule& capsule, int y, int inside, int outside) {
    while (std::abs(outside - inside) > 1) {
        const int middle = inside + (outside - inside) / 2;
        (capsule.contains(middle, y) ? inside : outside) = middle;
    }
    return inside;
}

void addWideLine(SpanMask& mask, QPoint from, QPoint to, int penWidth) {
    const Capsule capsule(from, to, penWidth);
    const QRect corners(QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
                        QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y())));
    const QRect reach = grownByPen(corners, penWidth).adjusted(-1, -1, 1, 1);
    const QRect rows = reach & mask.bounds();
    for (int y = rows.top(); y <= rows.bottom(); ++y) {
        // A capsule is convex: its part of a row is one run, found from any pixel within it.
        const double column = capsule.axisColumn(y);
        std::array<int, 2> seeds{static_cast<int>(std::floor(column)),
                                 static_cast<int>(std::ceil(column))};
        for (int seed : seeds) {
            if (capsule.contains(seed, y)) {
                const int left = findEdge(capsule, y, seed, reach.left() - 1);
                const int right = findEdge(capsule, y, seed, reach.right() + 1);
                mask.add(y, left, right + 1);
                break;
            }
        }
    }
}

/// Calls plot(left, top, right, bottom) with the four mirrored pixels of each step of the walk.
template <typename Plot>
void walkEllipse(int width, int height, Plot plot) {
    const Wide a = width - 1;
    const Wide b = height - 1;
    const Wide odd = b & 1;
    Wide dx = 4 * (1 - a) * b * b;
    Wide dy = 4 * (odd + 1) * a * a;
    Wide error = dx + dy + odd * a * a;
    int left = 0;
    auto right = static_cast<int>(a);
    auto bottom = static_cast<int>((b + 1) / 2);
    auto top = static_cast<int>(bottom - odd);
    do {
        plot(left, top, right, bottom);
        const Wide doubled = 2 * error;
        if (doubled <= dy) {
            ++bottom;
            --top;
            error += dy += 8 * a * a;
        }
        if (doubled >= dx || 2 * error > dy) {
            ++left;
            --right;
            error += dx += 8 * b * b;
        }
    } while (left <= right);
    // The walk of a flat ellipse stops before its tips.
    for (; bottom - top <= b; ++bottom, --top) {
        plot(left - 1, top, right + 1, bottom);
    }
}

/// Calls row(y, left, right) with mirrored pixels of the outline, every pixel at least once.
template <typename Row>
void walkRounded(const RoundedBox& shape, Row row) {
    const int moveX = shape.box.width() - shape.cornerWidth;
    const int moveY = shape.box.height() - shape.cornerHeight;
    walkEllipse(shape.cornerWidth, shape.cornerHeight,
                [&](int left, int top, int right, int bottom) {
                    const int x1 = shape.box.left() + left;
                    const int x2 = shape.box.left() + right + moveX;
                    row(shape.box.top() + top, x1, x2);
                    row(shape.box.top() + bottom + moveY, x1, x2);
                });
}

/// The straight sides between the corners of a rounded box, as rows and columns of pixels.
template <typename Row>
void walkSides(const RoundedBox& shape, Row row) {
    const QRect& box = shape.box;
    const int firstRow = box.top() + shape.cornerHeight / 2;
    const int lastRow = box.bottom() - shape.cornerHeight / 2;
    for (int y = firstRow; y <= lastRow; ++y) {
        row(y, box.left(), box.right());
    }
}

std::vector<QRect> capRuns(int penWidth) {
    std::vector<QRect> runs;
    const Capsule cap(QPoint(0, 0), QPoint(0, 0), penWidth);
    for (int y = -penWidth; y <= penWidth; ++y) {
        int left = -penWidth;
        int right = penWidth;
        while (left <= right && !cap.contains(left, y)) {
            ++left;
        }
        while (right >= left && !cap.contains(right, y)) {
            --right;
        }
        if (left <= right) {
            runs.emplace_back(left, y, right - left + 1, 1);
        }
    }
    return runs;
}

} // namespace

QRect grownByPen(const QRect& corners, int penWidth) {
    const int half = penWidth / 2;
    return corners.adjusted(-half, -half, half, half);
}

void addLine(SpanMask& mask, QPoint from, QPoint to, int penWidth) {
    if (penWidth <= 1) {
        addThinLine(mask, from, to);
    } else {
        addWideLine(mask, from, to, penWidth);
    }
}

void addBox(SpanMask& mask, const QRect& box, int penWidth) {
    if (penWidth > 1) {
        addWideLine(mask, box.topLeft(), box.topRight(), penWidth);
        addWideLine(mask, box.topRight(), box.bottomRight(), penWidth);
        addWideLine(mask, box.bottomRight(), box.bottomLeft(), penWidth);
        addWideLine(mask, box.bottomLeft(), box.topLeft(), penWidth);
        return;
    }
    mask.addRect(QRect(box.topLeft(), box.topRight()));
    mask.addRect(QRect(box.bottomLeft(), box.bottomRight()));
    mask.addRect(QRect(box.topLeft(), box.bottomLeft()));
    mask.addRect(QRect(box.topRight(), box.bottomRight()));
}

void addRoundedOutline(SpanMask& mask, const RoundedBox& shape, int penWidth,
                       const ArcTest& inArc) {
    const std::vector<QRect> cap = capRuns(std::max(1, penWidth));
    const auto stamp = [&](int x, int y) {
        if (inArc && !inArc(x, y)) {
            return;
        }
        for (const QRect& run : cap) {
            mask.add(y + run.y(), x + run.left(), x + run.right() + 1);
        }
    };
    const auto bothSides = [&](int y, int left, int right) {
        stamp(left, y);
        stamp(right, y);
    };
    walkRounded(shape, bothSides);
    walkSides(shape, bothSides);
    const int firstColumn = shape.box.left() + shape.cornerWidth / 2;
    const int lastColumn = shape.box.right() - shape.cornerWidth / 2;
    for (int x = firstColumn; x <= lastColumn; ++x) {
        stamp(x, shape.box.top());
        stamp(x, shape.box.bottom());
    }
}

void addRoundedFill(SpanMask& mask, const RoundedBox& shape) {
    const auto wholeRow = [&mask](int y, int left, int right) { mask.add(y, left, right + 1); };
    walkRounded(shape, wholeRow);
    walkSides(shape, wholeRow);
}

void roundedRuns(const RoundedBox& shape, int penWidth, std::vector<RowRun>& runs) {
    const int top = grownByPen(shape.box, penWidth).top();
    const auto rows = static_cast<std::size_t>(grownByPen(shape.box, penWidth).height());
    runs.assign(rows, {shape.box.right() + penWidth, shape.box.left() - penWidth});
    const auto widen = [&](int y, int left, int right) {
        RowRun& run = runs[static_cast<std::size_t>(y - top)];
        run = {std::min(run.left, left), std::max(run.right, right)};
    };
    walkRounded(shape, widen);
    walkSides(shape, widen);
    if (penWidth <= 1) {
        return;
    }
    const std::vector<RowRun> thin = runs;
    for (const QRect& cap : capRuns(penWidth)) {
        for (int y = shape.box.top(); y <= shape.box.bottom(); ++y) {
            const RowRun& run = thin[static_cast<std::size_t>(y - top)];
            widen(y + cap.y(), run.left + cap.left(), run.right + cap.right());
        }
    }
}

} // namespace kaart
