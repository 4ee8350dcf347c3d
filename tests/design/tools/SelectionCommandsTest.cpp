#include "design/tools/SelectionCommands.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

const QStringList red{"222222", "222222", "222222", "222222", "222222"};

void select(Design& design, const QRect& box) {
    design.Layer = {.Visible = true,
                    .Left = static_cast<double>(box.left()),
                    .Top = static_cast<double>(box.top())};
    design.SelectieBreedte = box.width();
    design.SelectieHoogte = box.height();
}

} // namespace

class SelectionCommandsTest : public QObject {
    Q_OBJECT

    using Clearing = Rows<int, QRect, QStringList>;

private slots:
    void TheRectangleIsClearedWithItsCorners_data() {
        const Clearing row;
        const QRect box(1, 1, 2, 2);
        row("cancel", 0, box, red);
        row("clear", 3, box, {red[0], "200022", "200022", "200022", red[4]});
        row("one pixel", 3, {5, 0, 1, 1}, {"222220", "222220", red[2], red[3], red[4]});
        row("with an edge", 4, box, {red[0], "211122", "210122", "211122", red[4]});
        row("with a frame", 5, box, {"555552", "500052", "500052", "500052", "555552"});
    }
    void TheRectangleIsClearedWithItsCorners() {
        const auto [index, box, expected] = Clearing::now();
        Design design({});
        design.open(pictureOf(red), QString());
        design.change([](PixelSurface& pic) { pic.PSet(100, 100, black); });
        design.LijstPic.PSet(6, 1, colourOf('5'));
        select(design, box);
        SelectieCopy(design, index);
        QCOMPARE(spell(design.Pic().Image().copy(0, 0, 6, 5)), expected);
        QCOMPARE(design.UndoPic().Point(100, 100), black);
        QVERIFY(!design.Layer.Visible);
    }

    void ACopyFloatsAndTheToolStays() {
        Design design({});
        design.TekenModus = 20;
        design.change([](PixelSurface& pic) {
            pic.Line(430, 630, 439, 639, RGB(0, 0, 255), LineMode::FilledBox);
            pic.PSet(438, 638, black);
        });
        QSignalSpy hint(&design, &Design::hintChanged);
        select(design, {437, 637, 5, 4});
        SelectieCopy(design, 2);
        QCOMPARE(spell(design.ClipPic), QStringList({"44400", "41400", "44400", "00000"}));
        QVERIFY(design.ClipPic.Visible && !design.Layer.Visible);
        QCOMPARE(design.TekenModus, 20);
        QCOMPARE(hint.value(0).value(0).toString(),
                 "Afbeelding verslepen met muis, rechts klikken is plaatsen.");
        QCOMPARE(design.UndoPic().Point(438, 638), black);
    }
};

KAART_TEST(SelectionCommandsTest)
#include "SelectionCommandsTest.moc"
