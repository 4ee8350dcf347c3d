#pragma once

#include "design/session/Design.h"
#include "design/surface/RowRhythm.h"

#include <QPoint>

#include <array>

namespace kaart {

/// The floating picture `ClipPic`. Its Left and Top, in pixels of the canvas, are those of its
/// frame, which is one pixel on each side and lies outside the picture: the picture's own pixels
/// start at (Left + 1, Top + 1), on the screen and where it is put down.
inline constexpr int floatFrame = 1;

/// Lets a picture float at the canvas's top left, in place of one that floats already, and shows
/// the hint. Whoever made a picture hands it over in this one call. With `takesMode50` the canvas's
/// tool gives way (TekenModus 50); otherwise it stays. An empty picture is not handed over.
void handOver(Design& design, const QImage& picture, const QString& hint, bool takesMode50);

/// Takes hold of the floating picture at a point, and moves it so that this point comes to another
/// one. Both are pixels from the frame's top left as it stands at that moment.
void grabFloat(Design& design, QPoint at);
void dragFloat(Design& design, QPoint at);
/// Moves it by so many pixels. It may stick out over any edge.
void moveFloat(Design& design, QPoint by);

/// The indexes of the menu array `Plak`: cancel, copy, AND, without background, and both flips.
inline constexpr std::array plakEntries = {1, 3, 4, 5, 7, 8};

/// Runs one of them, after the undo copy and Gewijzigd, which kept: cancelling and flipping take
/// too. 1, 3, 4 and 5 end the floating. 5 leaves out the pixels of the colour that the picture has
/// at (2, 2); of a picture too small for that none is left out. Its rows appear one after another,
/// and `rhythm` may give the window system a turn after each.
void Plak(Design& design, int index, RowRhythm& rhythm);

} // namespace kaart
