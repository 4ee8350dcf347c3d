#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include <QListWidget>
#include <QTimer>
#include <QtTest>

#include <array>
#include <cmath>
#include <numbers>

using namespace kaart;

namespace {

/// Points of a closed curve given in parts of a turn.
template <typename Curve>
QList<QPoint> along(int steps, Curve curve) {
    QList<QPoint> path;
    for (int i = 0; i <= steps; ++i) {
        path << curve(2 * std::numbers::pi * i / steps).toPoint();
    }
    return path;
}

/// A balloon at a place: its outline by free hand, filled, with a string.
void drawBalloon(User& user, QPointF middle, double size, ColorRef colour) {
    QWidget& pic = user.find(QStringLiteral("Pic"));
    user.click(QStringLiteral("TekenKnop(0)"));
    user.drag(pic, along(40, [&](double t) {
                  return middle + QPointF(size * std::sin(t), -1.2 * size * std::cos(t));
              }));
    user.drag(pic, along(24, [&](double t) {
                  return middle + QPointF(6 * std::sin(2 * t), 1.2 * size + 2 + 24 * t);
              }));
    pickColour(user, "VulScroll", colour);
    user.click(QStringLiteral("TekenKnop(3)"));
    user.clickAt(pic, middle.toPoint());
}

void emptyCard(User& user, Design&) {
    user.photo(QStringLiteral("lege-kaart"));
}

void drawCard(User& user, Design& design) {
    pickColour(user, "HScroll1", RGB(120, 40, 60));
    user.slide(QStringLiteral("HScroll2"), 3);
    drawBalloon(user, {130, 200}, 70, RGB(228, 87, 46));
    drawBalloon(user, {310, 180}, 62, RGB(46, 134, 171));
    drawBalloon(user, {225, 130}, 66, RGB(243, 182, 31));
    user.photo(QStringLiteral("losse-hand-en-vullen"));

    pickColour(user, "HScroll1", RGB(91, 154, 61));
    user.slide(QStringLiteral("HScroll2"), 6);
    user.click(QStringLiteral("TekenKnop(1)"));
    QWidget& pic = user.find(QStringLiteral("Pic"));
    user.drag(pic, {{0, 560}, {220, 540}, {439, 560}});
    for (int x = 30; x < 440; x += 45) {
        user.drag(pic, {{x, 556}, {x - 8, 530}});
        user.drag(pic, {{x, 556}, {x + 10, 526}});
    }
    pickColour(user, "VulScroll", RGB(200, 226, 170));
    user.click(QStringLiteral("TekenKnop(3)"));
    user.clickAt(pic, {220, 620});
    user.photo(QStringLiteral("rechte-lijnen"));
    if (!design.Gewijzigd) {
        user.fail(QStringLiteral("drawing did not mark the design"));
    }
}

void useAids(User& user, Design&) {
    user.click(QStringLiteral("Check1"));
    user.click(QStringLiteral("Check5"));
    user.click(QStringLiteral("TekenKnop(4)"));
    QWidget& pic = user.find(QStringLiteral("Pic"));
    user.slide(QStringLiteral("HScroll4"), 40);
    QTest::mousePress(&pic, Qt::LeftButton, {}, {400, 80});
    QTest::mouseMove(&pic, {400, 80});
    user.photo(QStringLiteral("gum-tekenkruis-lineaal"));
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, {400, 80});
    user.click(QStringLiteral("Check1"));
    user.click(QStringLiteral("Check5"));

    user.clickAt(pic, {130, 200}, Qt::RightButton);
    user.click(QStringLiteral("TekenKnop(5)"));
    QTimer::singleShot(400, [&user] {
        user.photo(QStringLiteral("selectie"));
        user.press(Qt::Key_Escape);
    });
    user.drag(pic, {{60, 100}, {200, 250}, {390, 420}});
}

void switchPanels(User& user, Design&) {
    user.click(QStringLiteral("TekenKnop(6)"));
    user.click(QStringLiteral("TekenKnop(9)"));
    user.photo(QStringLiteral("andere-panelen"));
    user.click(QStringLiteral("TekenKnop(66)"));
    user.click(QStringLiteral("TekenKnop(55)"));
}

void saveDesign(User& user, Design& design) {
    user.during([&] { user.menu(QStringLiteral("File"), QStringLiteral("FileSave")); },
                [&] {
                    user.click(QStringLiteral("Text1"));
                    user.type(QStringLiteral("Drie ballonnen"));
                    user.photo(QStringLiteral("opslaan"));
                    QTimer::singleShot(1200,
                                       [&user] { user.photo(QStringLiteral("opslaan-bezig")); });
                    user.click(QStringLiteral("SaveKnop"));
                });
    if (design.Gewijzigd ||
        !QFile::exists(design.Folders.in(QStringLiteral("Ontwerpen/Drie ballonnen.bmp"))) ||
        !QFile::exists(design.Folders.pictures + QStringLiteral("/Drie ballonnen.jpg"))) {
        user.fail(QStringLiteral("the design was not saved"));
    }
}

void newAndOpen(User& user, Design& design) {
    const QImage saved = design.Pic().Image().copy();
    user.during([&] { user.press(Qt::Key_N, Qt::ControlModifier); },
                [&] {
                    user.photo(QStringLiteral("nieuw"));
                    user.press(Qt::Key_Return);
                });
    if (design.Pic().Image() == saved) {
        user.fail(QStringLiteral("the new design is not empty"));
    }
    user.during([&] { user.menu(QStringLiteral("File"), QStringLiteral("FileOpen")); },
                [&] {
                    auto* list = qobject_cast<QListWidget*>(&user.find(QStringLiteral("List1")));
                    const QRect row = list->visualItemRect(list->item(0));
                    user.clickAt(*list->viewport(), row.center());
                    user.photo(QStringLiteral("openen"));
                    user.click(QStringLiteral("OkKnop"));
                });
    user.photo(QStringLiteral("geopend"));
    if (design.Pic().Image() != saved || design.OntwerpNaam != QStringLiteral("Drie ballonnen")) {
        user.fail(QStringLiteral("the opened design is not the saved one"));
    }
}

void printSheets(User& user, Design& design) {
    print(user, design, 0, QStringLiteral("A4-staand.pdf"));
    print(user, design, 1, QStringLiteral("Vouwkaart-staand.pdf"));
}

void lieDown(User& user, Design& design) {
    user.menu(QStringLiteral("Orientation"), QStringLiteral("Richting(2)"));
    pickColour(user, "HScroll1", RGB(138, 79, 125));
    user.slide(QStringLiteral("HScroll2"), 4);
    drawBalloon(user, {180, 150}, 80, RGB(91, 154, 61));
    drawBalloon(user, {420, 170}, 80, RGB(243, 182, 31));
    user.photo(QStringLiteral("liggend"));
    print(user, design, 1, QStringLiteral("Vouwkaart-liggend.pdf"));
}

void drawShapes(User& user, Design& design) {
    user.menu(QStringLiteral("Orientation"), QStringLiteral("Richting(1)"));
    user.slide(QStringLiteral("HScroll2"), 3);
    struct Figure {
        const char* entry;
        QPoint from;
        QPoint to;
        ColorRef colour;
    };
    const std::array figures = {
        Figure{"Vormen(2)", {30, 30}, {410, 150}, RGB(138, 79, 125)},
        Figure{"Vormen(8)", {40, 330}, {150, 470}, RGB(228, 87, 46)},
        Figure{"Vormen(13)", {170, 330}, {280, 470}, RGB(46, 134, 171)},
        Figure{"Vormen(3)", {300, 340}, {400, 460}, RGB(91, 154, 61)},
    };
    QWidget& pic = user.find(QStringLiteral("Pic"));
    for (const Figure& figure : figures) {
        pickColour(user, "HScroll1", figure.colour);
        const bool first = &figure == &figures.front();
        user.choosePopUp([&] { user.click(QStringLiteral("TekenKnop(2)")); },
                         QString::fromUtf8(figure.entry),
                         first ? QStringLiteral("vormen-menu") : QString());
        user.drag(pic, {figure.from, (figure.from + figure.to) / 2, figure.to});
    }
    user.photo(QStringLiteral("vormen"));
    if (design.Pic().Point(30, 90) != RGB(138, 79, 125)) {
        user.fail(QStringLiteral("the rounded rectangle is not there"));
    }
}

void placeTexts(User& user, Design& design) {
    QWidget& pic = user.find(QStringLiteral("Pic"));
    const auto place = [&](const QString& text, const char* size, QPoint at, const char* picture) {
        user.fill(QStringLiteral("Text1"), text);
        user.choose(QStringLiteral("Combo2"), QString::fromUtf8(size));
        user.click(QStringLiteral("PlaatsKnop"));
        QTest::mouseMove(&pic, at);
        if (picture != nullptr) {
            user.photo(QString::fromUtf8(picture));
        }
        user.clickAt(pic, at);
    };
    pickColour(user, "HScroll1", RGB(138, 79, 125));
    user.click(QStringLiteral("BoldCheck"));
    user.click(QStringLiteral("SchaduwCheck"));
    place(QStringLiteral("Hoera! Feest!"), "38", {60, 130}, "tekst-hangt");
    user.click(QStringLiteral("SchaduwCheck"));
    user.click(QStringLiteral("OpenCheck"));
    place(QStringLiteral("Kom je ook?"), "34", {100, 250}, nullptr);
    user.click(QStringLiteral("OpenCheck"));
    user.click(QStringLiteral("DiagonalCheck"));
    user.choose(QStringLiteral("Combo3"), QStringLiteral("15"));
    place(QStringLiteral("zaterdag 12 april"), "18", {190, 305}, nullptr);
    user.click(QStringLiteral("DiagonalCheck"));
    user.click(QStringLiteral("BoldCheck"));
    user.photo(QStringLiteral("tekstregels"));
    if (design.TekstHangt) {
        user.fail(QStringLiteral("a text still hangs"));
    }
}

void placePoem(User& user, Design& design) {
    user.choose(QStringLiteral("Combo2"), QStringLiteral("14"));
    user.click(QStringLiteral("TekenKnop(6)"));
    user.click(QStringLiteral("AlignKnop(3)"));
    doubleClickRow(user, QStringLiteral("Uitnodiging feest.txt"));
    user.click(QStringLiteral("AlignKnop(1)"));
    user.click(QStringLiteral("PlaatsKnop2"));
    user.carry(user.find(QStringLiteral("TextLabel2")), {70, 476});
    user.photo(QStringLiteral("lange-tekst"));
    user.clickAt(user.find(QStringLiteral("TextLabel2")), {20, 20}, Qt::RightButton);
    user.click(QStringLiteral("TekenKnop(66)"));
    if (design.TekstHangt) {
        user.fail(QStringLiteral("the poem still hangs"));
    }
}

void copyAPiece(User& user, Design& design) {
    user.click(QStringLiteral("TekenKnop(5)"));
    QWidget& pic = user.find(QStringLiteral("Pic"));
    user.choosePopUp(
        [&] {
            user.drag(pic, {{35, 325}, {100, 400}, {155, 475}});
        },
        QStringLiteral("SelectieCopy(2)"), QStringLiteral("selectie-menu"));
    QWidget& clip = user.find(QStringLiteral("ClipPic"));
    user.carry(clip, {292, 322});
    user.choosePopUp(
        [&] {
            user.clickAt(clip, {50, 50}, Qt::RightButton);
        },
        QStringLiteral("Plak(5)"), QStringLiteral("plakken"));
    user.photo(QStringLiteral("geplakt"));

    user.during(
        [&] {
            user.choosePopUp(
                [&] {
                    user.drag(pic, {{166, 325}, {220, 400}, {284, 475}});
                },
                QStringLiteral("SelectieCopy(7)"));
        },
        [&] {
            auto* list = qobject_cast<QListWidget*>(&user.find(QStringLiteral("List1")));
            user.clickAt(*list->viewport(), list->visualItemRect(list->item(0)).center());
            user.photo(QStringLiteral("importeren"));
            user.click(QStringLiteral("ExportKnop"));
        });
    user.photo(QStringLiteral("eigen-foto"));
    if (design.ClipPic.Visible) {
        user.fail(QStringLiteral("the picture still floats"));
    }
}

void frameIt(User& user, Design&) {
    user.click(QStringLiteral("TekenKnop(9)"));
    user.slide(QStringLiteral("LijstScroll"), 2);
    user.click(QStringLiteral("LijstKnop"));
    user.slide(QStringLiteral("LoepScroll"), 4);
    QCursor::setPos(user.find(QStringLiteral("Pic")).mapToGlobal(QPoint(95, 380)));
    user.wait(200);
    user.photo(QStringLiteral("lijst-en-loep"));
    user.slide(QStringLiteral("LoepScroll"), 0);
    user.click(QStringLiteral("TekenKnop(55)"));
}

void aboutAndGoodbye(User& user, Design& design) {
    user.during([&] { user.click(QStringLiteral("AboutKnop")); },
                [&] {
                    user.photo(QStringLiteral("about"));
                    user.click(QStringLiteral("CancelKnop"));
                });
    user.during([&] { user.click(QStringLiteral("ResetKnop")); },
                [&] {
                    user.photo(QStringLiteral("resetten"));
                    user.press(Qt::Key_Return);
                });
    if (design.LijnDikte != 2) {
        user.fail(QStringLiteral("the buttons were not set back"));
    }
    user.click(QStringLiteral("TekenKnop(0)"));
    user.drag(user.find(QStringLiteral("Pic")), {{20, 20}, {40, 40}});
    user.during([&] { user.press(Qt::Key_Q, Qt::ControlModifier); },
                [&] {
                    user.photo(QStringLiteral("afsluiten"));
                    user.press(Qt::Key_Return);
                });
}

constexpr std::array table = {
    Chapter{"an empty card", emptyCard},
    Chapter{"drawing", drawCard},
    Chapter{"aids, eraser and selection", useAids},
    Chapter{"the other panels", switchPanels},
    Chapter{"saving", saveDesign},
    Chapter{"a new card, and the old one again", newAndOpen},
    Chapter{"printing", printSheets},
    Chapter{"a lying card", lieDown},
    Chapter{"shapes", drawShapes},
    Chapter{"lines of text", placeTexts},
    Chapter{"a poem from the library", placePoem},
    Chapter{"a piece copied", copyAPiece},
    Chapter{"a frame, and a closer look", frameIt},
};

constexpr std::array last = {
    Chapter{"goodbye", aboutAndGoodbye},
};

} // namespace

std::span<const Chapter> cardChapters() {
    return table;
}

std::span<const Chapter> lastChapters() {
    return last;
}
