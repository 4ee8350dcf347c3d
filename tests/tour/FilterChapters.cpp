#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include <QClipboard>
#include <QGuiApplication>

#include <array>
#include <cmath>

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
    user.menu(QStringLiteral("Filters"), QStringLiteral("Filter(4)"));
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

void runColours(User& user, Design& design) {
    pickColour(user, "HScroll1", RGB(250, 214, 120));
    pickColour(user, "VulScroll", RGB(150, 60, 110));
    user.choosePopUp([&] { user.click(QStringLiteral("TekenKnop(8)")); },
                     QStringLiteral("GradientRichting(4)"), QStringLiteral("verloop-menu"));
    if (std::abs(redOf(design.Pic().Point(2, 2)) - 250) > 5) {
        user.fail(QStringLiteral("the colours do not begin with the drawing colour"));
    }
    user.press(Qt::Key_Z, Qt::ControlModifier);
    user.choosePopUp([&] { user.click(QStringLiteral("TekenKnop(8)")); },
                     QStringLiteral("GradientRichting(5)"));
    user.photo(QStringLiteral("verloop-rond"));
    user.press(Qt::Key_Z, Qt::ControlModifier);
    tryOut(user, design, "Tools", "ToolsRanden(4)", "buitenrand");
}

void tellAround(User& user, Design& design) {
    const auto readBox = [&](const std::function<void()>& opens, const char* picture) {
        user.during(opens, [&] {
            user.photo(QString::fromUtf8(picture));
            user.press(Qt::Key_Return);
        });
    };
    readBox([&] { user.menu(QStringLiteral("Efit"), QStringLiteral("EditClipboard")); },
            "clipboard");
    if (QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32) !=
        design.Pic().Image()) {
        user.fail(QStringLiteral("the clipboard has another picture"));
    }
    readBox([&] { user.menu(QStringLiteral("Help"), QStringLiteral("Helpscreen(1)")); },
            "schermresolutie");
    readBox([&] { user.menu(QStringLiteral("Help"), QStringLiteral("HelpSpecialeTekens")); },
            "speciale-tekens");
}

constexpr std::array table = {
    Chapter{"filters and flips", tryFilters},
    Chapter{"colour runs and edges", runColours},
    Chapter{"clipboard and help", tellAround},
};

} // namespace

std::span<const Chapter> filterChapters() {
    return table;
}
