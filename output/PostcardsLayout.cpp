#include "output/PostcardsLayout.h"

namespace kaart {

namespace {

struct Postcards {
    int orientation;
    QSize card;
    QPoint places[4];
};

const Postcards uprightCards{1, {5100, 7500}, {{600, 600}, {6150, 600}, {600, 8400}, {6150, 8400}}};
const Postcards lyingCards{2, {7500, 5100}, {{600, 600}, {8400, 600}, {600, 6150}, {8400, 6150}}};

} // namespace

bool printPostcards(PrinterObject& printer, const PrintOrder& order) {
    const Postcards& cards = order.landscape ? lyingCards : uprightCards;
    return printCopies(printer, cards.orientation, order.copies, [&] {
        for (const QPoint& place : cards.places) {
            printPicture(printer, order.picture, place.x(), place.y(), cards.card.width(),
                         cards.card.height());
        }
    });
}

} // namespace kaart
