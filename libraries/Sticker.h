#pragma once

#include "design/surface/PixelSurface.h"
#include "design/surface/RowRhythm.h"

#include <QPoint>
#include <QSize>
#include <QStringList>

namespace kaart {

/// A sticker sheet is a picture of any format that is exactly this large: five cells side by side.
/// It is shown at a third of its size. All in pixels.
inline constexpr QSize sheetSize{1650, 360};
inline constexpr QSize stickerCell{330, 360};
inline constexpr QSize shownSheet{550, 120};

/// The names of a folder's sheets *.art, sorted without regard to case; empty for a folder that
/// can't be read.
QStringList stickerSheetNames(const QString& folder);

/// Where in the sheet the sticker starts that is meant by a point of the shown sheet: 0, 330, 660,
/// 990 or 1320. Kept: a point in none of the cells, in a gap too, means the first sticker.
int stickerLeft(QPoint at);

/// The height of a sticker of so many pixels wide: 1.09 times, rounded half to even.
int stickerHeight(int width);

/// A sticker on its way from its sheet to the design.
struct Sticker {
    Sticker();

    PixelSurface BackPic;                                              ///< the sheet
    PixelSurface Pic{shownSheet.width(), shownSheet.height()};         ///< the sheet as shown
    PixelSurface ExportPic{stickerCell.width(), stickerCell.height()}; ///< the cell
    PixelSurface BigPic{110, 120};                                     ///< in the size chosen

    /// Loads a picture as the sheet and shows it; false, with nothing new shown, when it is no
    /// sheet. A file that can't be read leaves the sheet before it, on which the test is made then.
    /// Kept: a picture that is refused still is what the next sticker is cut from.
    bool openSheet(const QString& path);
    /// Cuts out the sticker at a point of the shown sheet.
    void pick(QPoint at);
    /// Kept: starts from the cell, so that mirroring and lost colours are undone.
    void resize(int width);
    /// Makes a pixel white when the mean of its parts is at least `threshold`, else black, row by
    /// row. `rhythm` may change the size meanwhile.
    void removeColours(double threshold, RowRhythm& rhythm);

private:
    void paintBigPic();
};

} // namespace kaart
