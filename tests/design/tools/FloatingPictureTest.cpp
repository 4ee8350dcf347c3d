#include "design/tools/FloatingPicture.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

const QStringList red{"222222", "222222", "222222", "222222", "222222"};
const QStringList piece{"1203", "0120", "3312"};

/// The top left of a picture, as large as `red`.
QStringList corner(const PixelSurface& surface) {
    return spell(surface.Image().copy(0, 0, 6, 5));
}

/// Does something after each row.
struct Rhythm final : RowRhythm {
    void rowDone(int done, int total) override {
        if (after) {
            after(done, total);
        }
    }
    std::function<void(int done, int total)> after;
};

/// A red corner on the canvas and a picture that floats above it.
struct Desk {
    explicit Desk(const QStringList& picture = piece) : design({}) {
        design.open(pictureOf(red), QString());
        QObject::connect(&design, &Design::hintChanged,
                         [this](const QString& text, ColorRef colour) {
                             hint = text;
                             hintColour = colour;
                         });
        handOver(design, pictureOf(picture), "Beweeg", true);
    }
    Design design;
    QString hint;
    ColorRef hintColour = 0;
    Rhythm rhythm;
};

} // namespace

class FloatingPictureTest : public QObject {
    Q_OBJECT

    using Placing = Rows<int, QPoint, QStringList, QStringList>;

private slots:
    void AHandedOverPictureReplacesTheOneAfloat() {
        Desk desk;
        QCOMPARE(desk.design.TekenModus, 50);
        QCOMPARE(desk.hint, "Beweeg");
        QCOMPARE(desk.hintColour, RGB(170, 0, 0));
        QVERIFY(desk.design.ClipPic.Visible && !desk.design.Gewijzigd);
        grabFloat(desk.design, {2, 1});
        dragFloat(desk.design, {-8, 3});
        dragFloat(desk.design, {3, 2});
        QCOMPARE(QPointF(desk.design.ClipPic.Left, desk.design.ClipPic.Top), QPointF(-9, 3));
        desk.design.TekenModus = 0;
        QSignalSpy shown(&desk.design, &Design::floatChanged);
        handOver(desk.design, pictureOf({"44"}), QString(), false);
        handOver(desk.design, {}, QString(), true);
        QCOMPARE(shown.size(), 1);
        QCOMPARE(desk.design.TekenModus, 0);
        QCOMPARE(spell(desk.design.ClipPic), QStringList("44"));
        QCOMPARE(QPointF(desk.design.ClipPic.Left, desk.design.ClipPic.Top), QPointF(0, 0));
    }

    void PuttingDownEndsTheFloating_data() {
        const Placing row;
        row("copy", 3, {}, piece, {red[0], "212032", "201202", "233122", red[4]});
        row("and", 4, {}, piece, {red[0], "212212", "221222", "211122", red[4]});
        row("without the colour at (2, 2)", 5, {}, piece,
            {red[0], "222032", "202202", "233222", red[4]});
        row("too small for a background", 5, {}, {"01", "00", "33"},
            {red[0], "201222", "200222", "233222", red[4]});
        row("cut off at the edges", 3, {-3, -2}, piece,
            {"202222", "122222", red[2], red[3], red[4]});
        row("cut off without background", 5, {-3, -2}, piece,
            {"202222", red[1], red[2], red[3], red[4]});
        row("beside the canvas", 5, {900, -90}, piece, red);
        row("cancel", 1, {}, piece, red);
    }
    void PuttingDownEndsTheFloating() {
        const auto [index, at, picture, expected] = Placing::now();
        Desk desk(picture);
        moveFloat(desk.design, at);
        Plak(desk.design, index, desk.rhythm);
        QCOMPARE(corner(desk.design.Pic()), expected);
        QCOMPARE(corner(desk.design.UndoPic()), red);
        QVERIFY(desk.design.Gewijzigd && !desk.design.ClipPic.Visible);
        QCOMPARE(desk.hint, "Informatie...");
        QCOMPARE(desk.design.TekenModus, 50);
    }

    void FlipsTurnThePictureAndLeaveItAfloat() {
        Desk desk;
        Plak(desk.design, 7, desk.rhythm);
        QCOMPARE(spell(desk.design.ClipPic), QStringList({"3021", "0210", "2133"}));
        Plak(desk.design, 8, desk.rhythm);
        QCOMPARE(spell(desk.design.ClipPic), QStringList({"2133", "0210", "3021"}));
        QVERIFY(desk.design.ClipPic.Visible && desk.design.Gewijzigd);
        QCOMPARE(corner(desk.design.UndoPic()), red);
        QCOMPARE(desk.hint, "Beweeg");
    }

    void RowsAppearOneAfterAnotherWhateverHappensBetween() {
        Desk desk;
        moveFloat(desk.design, {0, 435});
        QStringList rows;
        desk.rhythm.after = [&](int done, int total) {
            QCOMPARE(total, 3);
            rows << spell(desk.design.Pic().Image().copy(1, 436, 4, 3)).join(QLatin1Char(' '));
            if (done == 2) {
                desk.design.ZetRichting(2);
                handOver(desk.design, pictureOf({"4"}), QString(), false);
            }
        };
        Plak(desk.design, 5, desk.rhythm);
        QCOMPARE(rows, QStringList({"0203 0000 0000", "0203 0020 0000", "0000 0000 3302"}));
        QVERIFY(desk.design.ClipPic.Visible);
    }
};

KAART_TEST(FloatingPictureTest)
#include "FloatingPictureTest.moc"
