#pragma once

#include "design/surface/PixelSurface.h"
#include "design/surface/RowRhythm.h"

namespace kaart {

/// A command that works on the surface itself, line after line, so that the picture can be seen
/// changing. `undo` holds the picture as it was before the click. After each line `rhythm` may do
/// anything, even change the surface or its size: each line is done on what is there by then.
using SurfacePass = void (*)(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);

void inkleurenPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
void dodgePass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
void modernPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
/// In as many steps as the picture has columns.
void sepiaPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);

void flipHorizontalPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
void flipVerticalPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
/// In as many steps as the left half has columns.
void copyLeftSidePass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
void copyTopSidePass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);
void copyCornersPass(PixelSurface& pic, const PixelSurface& undo, RowRhythm& rhythm);

} // namespace kaart
