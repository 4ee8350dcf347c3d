#pragma once

#include "design/surface/SpanMask.h"

#include <QPoint>
#include <QRect>

#include <functional>
#include <vector>

namespace kaart {

// Which pixels the figures take, in whole pixels; each adds to a mask and is clipped by it without
// moving the pixels that remain. All are free of antialiasing.

/// The pixels that a stroke of this width can reach beyond its own corner points.
QRect grownByPen(const QRect& corners, int penWidth);

/// Pen 1: n = max(|dx|, |dy|) pixels from the start on, the end excluded; the longer axis (x on a
/// tie) steps by 1, the other takes the nearest pixel, a half toward the smaller coordinate.
/// Wider: pixels whose centre lies within the capsule of that width round the line, both ends
/// included; an even width leans up and left by half a pixel.
void addLine(SpanMask& mask, QPoint from, QPoint to, int penWidth);

/// The outline of a box that includes both its corners; the corners must be in order.
void addBox(SpanMask& mask, const QRect& box, int penWidth);

/// A rectangle with elliptical corners, all pixels included: an ellipse where the corners meet.
struct RoundedBox {
    QRect box;
    int cornerWidth;  ///< pixels of a whole corner ellipse, 1 to the box's width
    int cornerHeight; ///< likewise, 1 to the box's height

    static RoundedBox ellipse(const QRect& box) { return {box, box.width(), box.height()}; }
};

/// Decides whether a pixel of an outline belongs to the arc that is drawn.
using ArcTest = std::function<bool(int x, int y)>;

/// The outline by the integer midpoint walk of an ellipse in a rectangle (Zingl, "A Rasterizing
/// Algorithm for Drawing Curves", 2012), its quarters moved apart. A wider pen leaves its round cap
/// at every pixel of the thin outline. An empty test takes the whole outline.
void addRoundedOutline(SpanMask& mask, const RoundedBox& shape, int penWidth,
                       const ArcTest& inArc = {});
/// All pixels between the outline's pixels of each row, the outline included.
void addRoundedFill(SpanMask& mask, const RoundedBox& shape);

/// The columns left to right of one row, both included.
struct RowRun {
    int left;
    int right;
};

/// Fill and outline together, unclipped, as one run for each row of grownByPen(box), from its top.
void roundedRuns(const RoundedBox& shape, int penWidth, std::vector<RowRun>& runs);

} // namespace kaart
