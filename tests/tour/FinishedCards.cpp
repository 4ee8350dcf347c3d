#include "tests/tour/CardMaker.h"
#include "tests/tour/Chapters.h"

#include <array>

using namespace kaart;

namespace {

// What a card is printed as.
constexpr int folded = 1;
constexpr int postcards = 2;
constexpr int calendar = 3;

constexpr ColorRef ink = RGB(74, 63, 58);
constexpr ColorRef terracotta = RGB(196, 84, 56);

void childrensParty(User& user, Design& design) {
    CardMaker card(user, design, 1, QStringLiteral("Frame-004.jpg"));
    card.heading(QStringLiteral("Lotte wordt zeven!"),
                 {.size = "26", .colour = RGB(92, 70, 130), .bold = true}, {320, 60});
    card.poem(QStringLiteral("Uitnodiging kinderfeestje"), {.size = "14", .colour = ink},
              {320, 122});
    card.sticker(QStringLiteral("Feest.art"), 4, 130, {80, 190});
    card.sticker(QStringLiteral("Feest.art"), 0, 120, {430, 130});
    card.finish(QStringLiteral("Kinderfeestje"), postcards);
}

void birth(User& user, Design& design) {
    CardMaker card(user, design, 1, QStringLiteral("Frame-005.jpg"));
    card.heading(QStringLiteral("Noor"), {.size = "48", .colour = terracotta, .italic = true},
                 {220, 110});
    card.poem(QStringLiteral("Geboorte meisje"), {.size = "14", .colour = ink, .italic = true},
              {220, 210});
    card.finish(QStringLiteral("Geboorte"), folded);
}

void wedding(User& user, Design& design) {
    CardMaker card(user, design, 1, QStringLiteral("Frame-006.jpg"));
    card.heading(QStringLiteral("Emma & Daan"),
                 {.size = "30", .colour = RGB(79, 107, 86), .italic = true}, {220, 140});
    card.poem(QStringLiteral("Uitnodiging bruiloft"), {.size = "16", .colour = ink, .italic = true},
              {220, 210});
    card.finish(QStringLiteral("Bruiloft"), folded);
}

void christmas(User& user, Design& design) {
    CardMaker card(user, design, 1, QStringLiteral("Frame-008.jpg"));
    card.poem(QStringLiteral("Kerstwens"), {.size = "18", .colour = RGB(140, 36, 25)}, {330, 150});
    card.sticker(QStringLiteral("Kerst.art"), 3, 120, {60, 165});
    card.finish(QStringLiteral("Kerst"), postcards);
}

void moved(User& user, Design& design) {
    CardMaker card(user, design, 2, QStringLiteral("Template-006.jpg"));
    const Lettering hand{.size = "18", .colour = ink, .italic = true};
    card.heading(QStringLiteral("Familie de Vries"), hand, {320, 145});
    card.heading(QStringLiteral("Lindelaan 8 in Alkmaar"), hand, {320, 183});
    card.finish(QStringLiteral("Verhuisd"), folded);
}

void thanks(User& user, Design& design) {
    CardMaker card(user, design, 3, QStringLiteral("Achtergrond-003.jpg"));
    card.rings(9);
    card.drawing(QStringLiteral("Lente"), 198, QRect(75, 2, 222, 212), {110, 60});
    card.heading(QStringLiteral("Dank je wel!"),
                 {.size = "36", .colour = terracotta, .bold = true, .shadow = true}, {220, 290});
    card.poem(QStringLiteral("Bedankt"), {.size = "16", .colour = ink, .italic = true}, {220, 390});
    card.finish(QStringLiteral("Bedankt"), folded);
}

void yearOfTulips(User& user, Design& design) {
    CardMaker card(user, design, 3, QStringLiteral("Achtergrond-006.jpg"));
    card.picture(4, QStringLiteral("Masker-006.jpg"));
    card.sticker(QStringLiteral("Bloemen.art"), 2, 150, {60, 230});
    card.heading(QStringLiteral("Een jaar vol bloemen"),
                 {.size = "30", .colour = terracotta, .bold = true, .shadow = true}, {395, 62});
    card.finish(QStringLiteral("Jaarkalender"), calendar);
}

constexpr std::array table = {
    Chapter{"a children's party", childrensParty},
    Chapter{"a birth", birth},
    Chapter{"a wedding", wedding},
    Chapter{"Christmas", christmas},
    Chapter{"a new house", moved},
    Chapter{"a year of tulips", yearOfTulips},
    Chapter{"thanks", thanks},
};

} // namespace

std::span<const Chapter> finishedCards() {
    return table;
}
