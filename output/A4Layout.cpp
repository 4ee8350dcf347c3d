#include "output/A4Layout.h"

namespace kaart {

bool printA4(PrinterObject& printer, const PrintOrder& order) {
    constexpr double unit = 30; // twips
    const PrintMargins& margins = order.margins;
    const double width = order.landscape ? sheetHeight : sheetWidth;
    const double height = order.landscape ? sheetWidth : sheetHeight;
    return printCopies(printer, order.landscape ? 2 : 1, order.copies, [&] {
        printPicture(printer, order.picture, margins.left * unit, margins.top * unit,
                     width - margins.right * unit, height - margins.bottom * unit);
    });
}

} // namespace kaart
