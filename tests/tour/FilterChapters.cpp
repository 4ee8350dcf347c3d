#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include <array>

using namespace kaart;

namespace {

bool isGray(ColorRef colour) {
    return redOf(colour) == greenOf(colour) && greenOf(colour) == blueOf(colour);
}

/// An entry of a menu that changes the picture, and the card as it was again.
void tryOut(User& user, const Design& design, const char* menu, const char* entry,
            const char* picture) {
    const QImage before = design.Pic().Image();
    user.menu(QString::fromUtf8(menu), QString::fromUtf8(entry));
    if (design.Pic().Image() == before) {
        user.fail(QString::fromUtf8(entry) + QStringLiteral(" changed nothing"));
    }
    if (picture != nullptr) {
        user.photo(QString::fromUtf8(picture));
    }
    user.press(Qt::Key_Z, Qt::ControlModifier);
    if (design.Pic().Image() != before) {
        user.fail(QString::fromUtf8(entry) + QStringLiteral(" could not be undone"));
    }
}

void tryFilters(User& user, Design& design) {
    const QImage before = design.Pic().Image();
    user.menu(QStringLiteral("Filters"), QStringLiteral("Filter(4)"), true);
    if (!isGray(design.Pic().Point(35, 325)) || !isGray(design.Pic().Point(200, 90))) {
        user.fail(QStringLiteral("the card is not gray"));
    }
    user.press(Qt::Key_Z, Qt::ControlModifier);
    tryOut(user, design, "Filters", "Filter(15)", "aquarel");
    tryOut(user, design, "Filters", "Filter(13)", "scattered");
    tryOut(user, design, "Filters", "Filter(11)", "relief");
    tryOut(user, design, "Filters", "Filter(20)", "sepia");
    tryOut(user, design, "Filters", "EditSwap(2)", "kleuren-verwisseld");
    tryOut(user, design, "Filters", "EditContrastConvert(1)", nullptr);
    tryOut(user, design, "Flippen", "Flip(1)", nullptr);
    tryOut(user, design, "Flippen", "Flip(5)", "hoeken");
    if (design.Pic().Image() != before) {
        user.fail(QStringLiteral("the card is not the same again"));
    }
}

constexpr std::array table = {
    Chapter{"filters and flips", tryFilters},
};

} // namespace

std::span<const Chapter> filterChapters() {
    return table;
}
