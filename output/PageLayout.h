#pragma once

#include "design/surface/PrinterObject.h"

#include <QImage>

#include <functional>

namespace kaart {

/// The sheet that every layout takes, upright, in twips.
inline constexpr int sheetWidth = 11910;
inline constexpr int sheetHeight = 16845;

/// More copies than this count as this many, so that a slip of the keyboard can't empty the tray.
inline constexpr int mostCopies = 999;

/// Print margins in units of 30 twips; left and top may be negative.
struct PrintMargins {
    double left = 0;
    double top = 0;
    double right = 0;
    int bottom = 0;
};

/// What the print window asks a layout to put on paper.
struct PrintOrder {
    QImage picture;            ///< always taken as a whole
    bool landscape = false;    ///< the design is "Liggend"
    int copies = 1;            ///< below 1 prints nothing
    PrintMargins margins = {}; ///< only the A4 layout heeds them
    int year = 0;              ///< only the calendars heed it
};

/// A layout prints an order, true when the whole job came out. Lengths are twips on a sheet of
/// 11910 x 16845; the aspect ratio isn't kept.
using PageLayout = bool (*)(PrinterObject& printer, const PrintOrder& order);

/// The common frame of all layouts: twips and orientation (1 portrait, 2 landscape), then each copy
/// drawn on a sheet of its own, and the end of the job, whose result is the answer.
bool printCopies(PrinterObject& printer, int orientation, int copies,
                 const std::function<void()>& drawPage);

/// Puts a whole picture in a target given in twips.
void printPicture(PrinterObject& printer, const QImage& picture, double x, double y, double width,
                  double height);

} // namespace kaart
