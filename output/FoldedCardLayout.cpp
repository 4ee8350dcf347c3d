#include "output/FoldedCardLayout.h"

namespace kaart {

namespace {

struct Card {
    int orientation;
    QRect picture;
    QRect box;
};

const Card uprightCard{2, {2400, 1410, 6000, 9180}, {8400, 1410, 6000, 9180}};
const Card lyingCard{1, {1410, 2400, 9180, 6000}, {1410, 8400, 9180, 6000}};

} // namespace

bool printFoldedCard(PrinterObject& printer, const PrintOrder& order) {
    const Card& card = order.landscape ? lyingCard : uprightCard;
    return printCopies(printer, card.orientation, order.copies, [&] {
        const QRect& picture = card.picture;
        const QRect& box = card.box;
        printPicture(printer, order.picture, picture.x(), picture.y(), picture.width(),
                     picture.height());
        printer.FillColor = RGB(240, 240, 240);
        printer.FillStyle = Fill::Solid;
        printer.Line(box.x(), box.y(), box.x() + box.width(), box.y() + box.height(), black,
                     LineMode::Box);
    });
}

} // namespace kaart
