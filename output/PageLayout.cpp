#include "output/PageLayout.h"

#include <algorithm>

namespace kaart {

bool printCopies(PrinterObject& printer, int orientation, int copies,
                 const std::function<void()>& drawPage) {
    printer.ScaleMode = ScaleUnit::Twips;
    printer.Orientation = orientation;
    for (int copy = 0; copy < std::min(copies, mostCopies); ++copy) {
        drawPage();
        printer.NewPage();
    }
    return printer.EndDoc();
}

void printPicture(PrinterObject& printer, const QImage& picture, double x, double y, double width,
                  double height) {
    printer.PaintPicture(picture, x, y, width, height, 0, 0, picture.width(), picture.height());
}

} // namespace kaart
