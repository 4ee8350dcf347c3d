#pragma once

#include "design/surface/PixelSurface.h"

namespace kaart {

/// The four layouts in the order of the print window.
enum class PrintOption { A4 = 0, FoldedCard = 1, FourPostcards = 2, YearCalendar = 3 };

/// Gives the preview the size of a sheet in twips, 1650 x 2400 upright for kind 1 and 2400 x 1650
/// for any other, and clears it, picture included.
void SizePreview(PixelSurface& preview, int kind);

/// The kind of sheet that a layout of an upright or lying design is previewed on.
int previewKind(PrintOption option, bool landscape);

/// Draws a layout's preview: sizes and clears the preview, then draws the design wherever the
/// layout puts it. `calendarSheet` is the background of the year calendar, in the preview's size.
void drawPreview(PixelSurface& preview, PrintOption option, bool landscape, const QImage& design,
                 const QImage& calendarSheet);

} // namespace kaart
