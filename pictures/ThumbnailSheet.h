#pragma once

#include "design/surface/PixelSurface.h"

#include <QRect>

namespace kaart {

// A sheet of thumbnails, five to a row. Places and sizes are pixels of the sheet.

/// The size of a picture's thumbnail, by the picture's shape only: upright, lying or square.
QSize thumbnailSize(const QSize& picture);

/// Where the thumbnail of a picture stands, counted from 0, and the outline round it.
QRect thumbnailPlace(int index, const QSize& thumbnail);
QRect outlinePlace(const QRect& thumbnail);

/// The height of a sheet with so many thumbnails, 0 without any.
int sheetHeight(int count);

/// The width of the progress bar when all is done; its height is one more than its last row.
inline constexpr int progressWidth = 500;
/// Shows that `done` pictures of `count`, at least 1, are finished, in a soft green of nine rows.
void drawProgress(PixelSurface& bar, int done, int count);

} // namespace kaart
