#pragma once

#include "design/surface/PixelSurface.h"

#include <QString>

namespace kaart {

/// The sheet of arrows, flags and pins, Data/Arrows.arr: a picture of 400 x 2000 pixels, four
/// pictures of 100 x 100 to a row. One of them is picked, turned and mirrored here, always in both
/// its sizes.
class ArrowSheet {
public:
    static constexpr int rows = 20;
    static constexpr int cell = 100; ///< pixels
    static constexpr int half = cell / 2;
    static constexpr int perRow = 4;

    PixelSurface BackPic;                  ///< the sheet
    PixelSurface Pic{perRow * cell, cell}; ///< one row of it
    PixelSurface Picture1{cell, cell};     ///< the picked picture
    PixelSurface MiniPic{half, half};      ///< the same at half size
    bool PictureChosen = false;

    ArrowSheet();

    /// Loads the sheet and shows row 0. False, and nothing changes, for a file that can't be read.
    bool open(const QString& path);
    /// Paints a row, 0 to 19, on Pic; what the sheet doesn't have stays as it was.
    void showRow(int row);
    /// Picks the picture at column x of Pic, 0 to 399. Kept: a cell's last column takes the first.
    void pick(int x);
    /// A quarter turn clockwise. Kept: it turns the picture as it was before it was mirrored.
    void turn();
    void mirror();

private:
    PixelSurface RotatiePic{cell, cell}; ///< what a turn reads
};

} // namespace kaart
