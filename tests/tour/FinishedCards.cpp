#include "tests/tour/CardMaker.h"
#include "tests/tour/Chapters.h"

#include <array>

using namespace kaart;

namespace {

void childrensParty(User& user, Design& design) {
    CardMaker card(user, design);
    card.begin();
    card.picture(1, QStringLiteral("Frame-002.jpg"));
    card.heading(QStringLiteral("Hoera, feest!"),
                 {.size = "28", .colour = RGB(217, 105, 74), .bold = true, .shadow = true},
                 {320, 92});
    card.poem(QStringLiteral("Uitnodiging kinderfeestje"),
              {.size = "14", .colour = RGB(74, 63, 58), .italic = true}, {320, 150});
    card.sticker(QStringLiteral("Feest.art"), 0, 120, {88, 240});
    card.finish(QStringLiteral("Kinderfeestje"), 2);
}

constexpr std::array table = {
    Chapter{"a card for a children's party", childrensParty},
};

} // namespace

std::span<const Chapter> finishedCards() {
    return table;
}
