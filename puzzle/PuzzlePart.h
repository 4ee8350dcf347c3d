#pragma once

#include "design/surface/PixelSurface.h"

#include <optional>

namespace kaart {

/// One piece. It always shows the same tile of the picture; what changes is where it stands. Cells
/// bear the numbers of the pieces that belong there, from 1, column by column: the bottom row has
/// the multiples of RowCount. Lengths are twips within the puzzle.
struct PuzzlePart {
    int Index;
    double Left;
    double Top;
    double Width;
    double Height;
    int Tag;         ///< the cell where it stands now
    int BorderStyle; ///< 1 thin line, 0 none
    bool Visible;
    PixelSurface Picture;

    bool standsRight() const { return Tag == Index; }
};

/// The piece's share of the room, twips.
struct PartSize {
    float PartWidth;
    float PartHeight;
};

/// How large the pieces of a picture become that is to fill a room, in twips. Nothing when there is
/// no picture, no grid or no room.
std::optional<PartSize> fitParts(const PixelSurface& picSource, int ColCount, int RowCount,
                                 int MaxWidth, int MaxHeight);

/// The piece of column i and row j, both from 1, in its own cell and with its tile painted.
PuzzlePart makePart(const PixelSurface& picSource, int ColCount, int RowCount, int i, int j,
                    const PartSize& size);

} // namespace kaart
