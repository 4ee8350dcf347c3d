#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include <algorithm>
#include <array>

using namespace kaart;

namespace {

bool isBluish(QRgb pixel) {
    return qBlue(pixel) > qRed(pixel) + 60;
}

void bendAWish(User& user, Design& design) {
    user.during([&] { user.press(Qt::Key_N, Qt::ControlModifier); },
                [&] { user.press(Qt::Key_Return); });
    user.during([&] { user.click(QStringLiteral("TekenKnop(7)")); },
                [&] {
                    user.fill(QStringLiteral("Text1"), QStringLiteral("Van harte gefeliciteerd! "));
                    user.slide(QStringLiteral("HScroll2"), 110);
                    user.choosePopUp(
                        [&] {
                            user.click(QStringLiteral("KleurKnop"));
                            user.wait(200);
                        },
                        QStringLiteral("Kleurtje(3)"));
                    user.drag(user.find(QStringLiteral("Pic")), {{172, 4}, {300, 150}, {511, 335}});
                    user.photo(QStringLiteral("golftekst"));
                    user.click(QStringLiteral("ExportKnop"));
                });
    const QImage text = design.ClipPic.Image().convertToFormat(QImage::Format_RGB32);
    const auto* pixels = reinterpret_cast<const QRgb*>(text.constBits());
    if (std::none_of(pixels, pixels + text.width() * text.height(), isBluish)) {
        user.fail(QStringLiteral("the bent text is not blue"));
    }
    putDown(user, design, {50, 20}, 4);
}

void placeBalloon(User& user, Design& design) {
    inWindow(user, "Gereedschap", "GereedschapTekstBallon", [&] {
        user.click(QStringLiteral("Knop(2)"));
        user.slide(QStringLiteral("HScroll1"), 240);
        user.photo(QStringLiteral("tekstballon"));
        user.click(QStringLiteral("ExportKnop"));
    });
    if (design.ClipPic.bounds().width() != 240) {
        user.fail(QStringLiteral("the balloon is not as wide as was asked"));
    }
    putDown(user, design, {20, 390}, 5);
}

void placePolygon(User& user, Design& design) {
    inWindow(user, "Gereedschap", "GereedschapPolygon", [&] {
        QWidget& picture = user.find(QStringLiteral("Picture1"));
        user.drag(picture, {{30, 30}, {100, 100}, {149, 149}});
        user.clickAt(picture, {90, 90}, Qt::RightButton);
        user.photo(QStringLiteral("zeshoek"));
        user.click(QStringLiteral("ExportKnop"));
    });
    putDown(user, design, {290, 480}, 5);
    user.photo(QStringLiteral("tekst-ballon-zeshoek"));
    if (design.Pic().Point(350, 540) != RGB(255, 255, 0)) {
        user.fail(QStringLiteral("the hexagon is not there, or not yellow"));
    }
}

void bevelTheEdge(User& user, Design& design) {
    const QImage before = design.Pic().Image();
    inWindow(user, "Gereedschap", "GereedschapRotatie", [&] {
        user.click(QStringLiteral("KaderKnop"));
        const QImage bevelled = design.Pic().Image();
        user.click(QStringLiteral("ResetKnop"));
        if (bevelled == before || design.Pic().Image() != before) {
            user.fail(QStringLiteral("the bevel did not come, or did not go"));
        }
        user.click(QStringLiteral("KaderKnop"));
        user.photo(QStringLiteral("kader"));
        user.click(QStringLiteral("CancelKnop"));
    });
    if (design.Pic().Image() == before) {
        user.fail(QStringLiteral("the bevel did not stay"));
    }
}

constexpr std::array table = {
    Chapter{"a wish in a circle", bendAWish},
    Chapter{"a balloon", placeBalloon},
    Chapter{"a hexagon", placePolygon},
    Chapter{"a bevelled edge", bevelTheEdge},
};

} // namespace

std::span<const Chapter> artChapters() {
    return table;
}
