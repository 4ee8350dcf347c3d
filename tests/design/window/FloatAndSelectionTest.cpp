#include "design/tools/FloatingPicture.h"
#include "tests/support/MainDesk.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

bool layerWasThere = false;
QImage undoThen;
constexpr WindowRow windows[] = {{"SelectieCopy(7)", [](Design& design, QWidget*) {
                                      layerWasThere = design.Layer.Visible;
                                      undoThen = design.UndoPic().Image();
                                      design.change(
                                          [](PixelSurface& pic) { pic.PSet(3, 3, black); });
                                  }}};

/// A random picture on the canvas, with the selection tool.
struct Desk : MainDesk {
    Desk() : MainDesk(windows) {
        std::mt19937 random(5);
        ground = randomPicture(440, 640, random);
        design.open(ground, QString());
        click("TekenKnop(5)");
    }
    SurfaceView& clip() { return at<SurfaceView>("ClipPic"); }
    void choose(const char* name) {
        onPopUp([this, name](QMenu& menu) {
            opened = menu.objectName();
            pick(menu, name);
        });
    }

    QImage ground;
    QString opened;
};

} // namespace

class FloatAndSelectionTest : public QObject {
    Q_OBJECT

private slots:
    void ACopiedSelectionIsDraggedAndComesDownWhereItIsSeen() {
        Desk desk;
        desk.choose("SelectieCopy(2)");
        drag(desk.pic(), {10, 20}, {39, 59});
        QVERIFY(!desk.shown("Layer"));
        QCOMPARE(desk.clip().geometry(), QRect(0, 0, 32, 42));
        comparePictures(desk.clip().Image(), desk.ground.copy(10, 20, 30, 40));
        QCOMPARE(desk.design.TekenModus, 20);

        QTest::mousePress(&desk.clip(), Qt::LeftButton, {}, QPoint(5, 5));
        moveHeld(desk.clip(), {-15, 605});
        moveHeld(desk.clip(), {4, 25});
        QTest::mouseRelease(&desk.clip(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(desk.clip().geometry(), QRect(-21, 620, 32, 42));
        const QRect inside(0, 621, 10, 19);
        const QImage seen = desk.pic().grab(inside).toImage();
        comparePictures(desk.design.Pic().Image(), desk.ground);

        desk.choose("Plak(3)");
        QTest::mouseClick(&desk.clip(), Qt::RightButton, {}, QPoint(30, 3));
        QCOMPARE(desk.opened, "Plakken");
        QVERIFY(desk.clip().isHidden());
        comparePictures(desk.design.Pic().Image().copy(inside), toSurfaceFormat(seen));
        PixelSurface expected(440, 640);
        expected.setPicture(desk.ground);
        expected.PaintPicture(desk.ground.copy(10, 20, 30, 40), -20, 621);
        comparePictures(desk.design.Pic().Image(), expected.Image());
        QCOMPARE(desk.text("InfoLabel"), "Informatie...");
    }

    void ClosingAPopUpEndsNothingAndBeginsNothing() {
        for (const bool beside : {false, true}) {
            Desk desk;
            const auto closeIt = [&](QMenu& menu) {
                if (beside) {
                    const QPoint at = menu.mapFromGlobal(desk.pic().mapToGlobal(QPoint(200, 600)));
                    QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, at);
                } else {
                    QTest::keyClick(&menu, Qt::Key_Escape);
                }
            };
            desk.onPopUp([&](QMenu& menu) {
                QCOMPARE(menu.objectName(), "CopySelectie");
                QVERIFY(desk.shown("Layer"));
                closeIt(menu);
            });
            drag(desk.pic(), {10, 20}, {39, 59});
            QCoreApplication::processEvents();
            QVERIFY(!desk.shown("Layer"));
            QCOMPARE(desk.design.BeginY, 20.0);
            comparePictures(desk.design.Pic().Image(), desk.ground);

            handOver(desk.design, desk.ground.copy(0, 0, 50, 50), QString(), false);
            desk.onPopUp(closeIt);
            QTest::mouseClick(&desk.clip(), Qt::RightButton);
            QVERIFY(desk.clip().isVisible());
            comparePictures(desk.design.Pic().Image(), desk.ground);
        }
    }

    void TheRectangleStaysWhileAWindowWorksOnIt() {
        Desk desk;
        desk.onPopUp([&desk](QMenu& menu) {
            desk.design.change([](PixelSurface& pic) { pic.PSet(5, 5, black); });
            desk.pick(menu, "SelectieCopy(7)");
        });
        drag(desk.pic(), {10, 20}, {39, 59});
        QVERIFY(layerWasThere && !desk.shown("Layer"));
        QCOMPARE(undoThen.pixel(5, 5), 0xFF000000);
        QCOMPARE(desk.design.Pic().Point(3, 3), black);
    }

    void TheKeyboardMovesAndPutsDown() {
        Desk desk;
        handOver(desk.design, pictureOf({"000", "010", "001"}), QString(), true);
        desk.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.window));
        QVERIFY(desk.clip().hasFocus());
        for (const auto key :
             {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}) {
            QTest::keyClick(&desk.clip(), key);
        }
        QCOMPARE(desk.clip().pos(), QPoint(1, 1));
        desk.choose("Plak(5)");
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&desk.clip(), &menuKey);
        QCOMPARE(desk.design.Pic().Point(2, 2), white);
        QCOMPARE(desk.design.Pic().Point(4, 4), toColorRef(desk.ground.pixel(4, 4)));
        QCOMPARE(desk.window.focusWidget(), &desk.pic());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
};

KAART_TEST(FloatAndSelectionTest)
#include "FloatAndSelectionTest.moc"
