#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/tools/FloatingPicture.h"
#include "design/window/Main.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>

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

/// A random picture on the canvas of a main window, with the selection tool.
struct Desk {
    Desk() {
        std::mt19937 random(5);
        ground = randomPicture(440, 640, random);
        design.open(ground, QString());
        window.show();
        QTest::mouseClick(&control<VistaButton>(window, "TekenKnop", 5), Qt::LeftButton);
    }
    SurfaceView& pic() { return control<SurfaceView>(window, "Pic"); }
    SurfaceView& clip() { return control<SurfaceView>(window, "ClipPic"); }
    bool layerShown() { return control<QWidget>(window, "Layer").isVisible(); }

    /// Moves the held mouse; QTest's moves carry no button.
    static void moveHeld(QWidget& widget, QPoint to) {
        QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &move);
    }
    void select(QPoint from, QPoint to) {
        QTest::mousePress(&pic(), Qt::LeftButton, {}, from);
        moveHeld(pic(), to);
        QTest::mouseRelease(&pic(), Qt::LeftButton, {}, to);
    }
    /// Acts on the next pop-up as soon as it is open.
    void onPopUp(std::function<void(QMenu& menu)> act) {
        QTimer::singleShot(0, &window, [this, act = std::move(act)] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            opened = menu->objectName();
            act(*menu);
        });
    }
    void pick(QMenu& menu, const char* array, int index) {
        auto& entry = control<QAction>(window, array, index);
        QVERIFY(entry.isEnabled());
        menu.setActiveAction(&entry);
        QTest::keyClick(&menu, Qt::Key_Return);
    }
    void choose(const char* array, int index) {
        onPopUp([this, array, index](QMenu& menu) { pick(menu, array, index); });
    }

    QTemporaryDir folder;
    Design design{{folder.path(), folder.path()}};
    Main window{design, windows};
    QImage ground;
    QString opened;
};

} // namespace

class FloatAndSelectionTest : public QObject {
    Q_OBJECT

private slots:
    void ACopiedSelectionIsDraggedAndComesDownWhereItIsSeen() {
        Desk desk;
        desk.choose("SelectieCopy", 2);
        desk.select({10, 20}, {39, 59});
        QVERIFY(!desk.layerShown());
        QCOMPARE(desk.clip().geometry(), QRect(0, 0, 32, 42));
        comparePictures(desk.clip().Image(), desk.ground.copy(10, 20, 30, 40));
        QCOMPARE(desk.design.TekenModus, 20);

        QTest::mousePress(&desk.clip(), Qt::LeftButton, {}, QPoint(5, 5));
        Desk::moveHeld(desk.clip(), {-15, 605});
        Desk::moveHeld(desk.clip(), {4, 25});
        QTest::mouseRelease(&desk.clip(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(desk.clip().geometry(), QRect(-21, 620, 32, 42));
        const QRect inside(0, 621, 10, 19);
        const QImage seen = desk.pic().grab(inside).toImage();
        comparePictures(desk.design.Pic().Image(), desk.ground);

        desk.choose("Plak", 3);
        QTest::mouseClick(&desk.clip(), Qt::RightButton, {}, QPoint(30, 3));
        QCOMPARE(desk.opened, QStringLiteral("Plakken"));
        QVERIFY(desk.clip().isHidden());
        comparePictures(desk.design.Pic().Image().copy(inside), toSurfaceFormat(seen));
        PixelSurface expected(440, 640);
        expected.setPicture(desk.ground);
        expected.PaintPicture(desk.ground.copy(10, 20, 30, 40), -20, 621);
        comparePictures(desk.design.Pic().Image(), expected.Image());
        QCOMPARE(control<QLabel>(desk.window, "InfoLabel").text(), QStringLiteral("Informatie..."));
    }

    void ClosingAPopUpEndsNothingAndBeginsNothing_data() {
        QTest::addColumn<bool>("beside");
        QTest::newRow("escape") << false;
        QTest::newRow("click beside it") << true;
    }
    void ClosingAPopUpEndsNothingAndBeginsNothing() {
        QFETCH(bool, beside);
        Desk desk;
        const auto closeIt = [&](QMenu& menu) {
            if (beside) {
                const QPoint at = desk.pic().mapToGlobal(QPoint(200, 600));
                QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, menu.mapFromGlobal(at));
            } else {
                QTest::keyClick(&menu, Qt::Key_Escape);
            }
        };
        desk.onPopUp([&](QMenu& menu) {
            QVERIFY(desk.layerShown());
            closeIt(menu);
        });
        desk.select({10, 20}, {39, 59});
        QCOMPARE(desk.opened, QStringLiteral("CopySelectie"));
        QCoreApplication::processEvents();
        QVERIFY(!desk.layerShown());
        QCOMPARE(desk.design.BeginY, 20.0);
        comparePictures(desk.design.Pic().Image(), desk.ground);

        handOver(desk.design, desk.ground.copy(0, 0, 50, 50), QString(), false);
        desk.onPopUp(closeIt);
        QTest::mouseClick(&desk.clip(), Qt::RightButton);
        QVERIFY(desk.clip().isVisible());
        comparePictures(desk.design.Pic().Image(), desk.ground);
    }

    void TheRectangleStaysWhileAWindowWorksOnIt() {
        Desk desk;
        desk.onPopUp([&desk](QMenu& menu) {
            desk.design.change([](PixelSurface& pic) { pic.PSet(5, 5, black); });
            desk.pick(menu, "SelectieCopy", 7);
        });
        desk.select({10, 20}, {39, 59});
        QVERIFY(layerWasThere && !desk.layerShown());
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
        desk.choose("Plak", 5);
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
