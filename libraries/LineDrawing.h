#pragma once

#include "design/surface/PixelSurface.h"

#include <QPoint>
#include <QStringList>

namespace kaart {

/// The names of a folder's drawings *.vec, sorted without regard to case; empty for a folder that
/// can't be read.
QStringList lineDrawingNames(const QString& folder);

/// The eraser for a pointer at a point: up and left of it, so that the pointer hides nothing.
QRect eraserCursor(QPoint pointer);

/// A line drawing, black on white and of any size, of which a part is shown and a piece cut out.
/// All in pixels. Where a drawing or a view of it ends, there is white.
struct LineDrawing {
    LineDrawing();

    PixelSurface BackPic;       ///< the whole drawing
    PixelSurface Pic{442, 233}; ///< what is shown of it
    PixelSurface CopyPic;       ///< the cut-out; empty until there is one

    /// Loads a drawing; false, with the one before it left, for a file that can't be read.
    bool open(const QString& path);
    /// How far it can be scrolled; 0 in a direction in which it fits.
    QSize overflow() const;
    /// Shows the part that starts at a point of the drawing.
    void scrollTo(QPoint offset);
    /// Cuts out a rectangle of what is shown; an empty one leaves an empty cut-out.
    void cut(const QRect& part);
    /// Paints one white disc into the cut-out, under the eraser cursor. Kept: two of them are not
    /// joined, so a fast stroke leaves gaps.
    void erase(QPoint pointer);
};

} // namespace kaart
