#include "design/tools/CanvasMouse.h"
#include "design/tools/Clock.h"
#include "design/tools/Rulers.h"
#include "design/tools/ToolTable.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;
using Button = CanvasMouse::Button;

class CanvasMouseTest : public QObject {
    Q_OBJECT

private:
    /// A design with a mouse, as each test begins.
    struct Desk {
        explicit Desk(int tool) : design({}) {
            design.TekenModus = tool;
            design.LijnDikte = 1;
        }
        void drag(QPoint from, std::initializer_list<QPoint> to) {
            mouse.press(Button::Left, from);
            for (const QPoint& at : to) {
                mouse.move(at);
            }
            mouse.release(Button::Left, std::data(to)[to.size() - 1]);
        }
        ColorRef at(int x, int y) const { return design.Pic().Point(x, y); }

        Design design;
        CanvasMouse mouse{design};
    };

private slots:
    void FreeHandJoinsThePointsAndTakesUndoOnce() {
        Desk desk(0);
        desk.drag({10, 10}, {{20, 10}, {20, 20}});
        QCOMPARE(desk.at(10, 10), RGB(60, 60, 60));
        QCOMPARE(desk.at(20, 10), RGB(60, 60, 60));
        QCOMPARE(desk.at(20, 19), RGB(60, 60, 60));
        desk.design.EditUndo();
        QCOMPARE(desk.at(15, 10), white);
        desk.mouse.move({100, 100});
        QCOMPARE(desk.at(60, 60), white);
    }

    void TheRubberLineLeavesNoTrace() {
        for (int width : {1, 2, 7}) {
            Desk desk(1);
            desk.design.LijnDikte = width;
            std::mt19937 random(7);
            const QImage ground = randomPicture(440, 640, random);
            desk.design.open(ground, QString());
            desk.mouse.press(Button::Left, {50, 60});
            desk.mouse.move({400, 600});
            QVERIFY(desk.at(225, 330) != toColorRef(ground.pixel(225, 330)));
            desk.mouse.move({-30, 700});
            desk.mouse.move({80, 60});
            desk.mouse.release(Button::Left, {90, 60});
            PixelSurface expected(440, 640);
            expected.setPicture(ground);
            expected.DrawWidth = width;
            expected.Line(50, 60, 90, 60, RGB(60, 60, 60));
            comparePictures(desk.design.Pic().Image(), expected.Image());
        }
    }

    void FillWorksAtThePress() {
        Desk desk(18);
        desk.design.change([](PixelSurface& pic) { pic.Line(100, 0, 100, 640, black); });
        desk.mouse.press(Button::Left, {10, 10});
        QCOMPARE(desk.at(99, 639), RGB(200, 250, 0));
        QCOMPARE(desk.at(101, 0), white);
        desk.mouse.release(Button::Left, {10, 10});
        desk.design.EditUndo();
        QCOMPARE(desk.at(99, 639), white);
    }

    void TheEraserStampsUpAndLeftOfTheMouse() {
        Desk desk(19);
        QImage ground(440, 640, QImage::Format_RGB32);
        ground.fill(Qt::black);
        desk.design.open(ground, QString());
        desk.mouse.press(Button::Left, {100, 100});
        QVERIFY(desk.design.Gom.Visible);
        QCOMPARE(desk.design.Gom.Left, 80.0);
        QCOMPARE(desk.at(82, 90), white);
        QCOMPARE(desk.at(98, 90), white);
        QCOMPARE(desk.at(81, 90), black);
        QCOMPARE(desk.at(99, 90), black);
        QCOMPARE(desk.at(90, 99), black);
        desk.design.GummenInVulkleur = true;
        desk.mouse.move({140, 100});
        QCOMPARE(desk.at(130, 90), RGB(200, 250, 0));
        QCOMPARE(desk.design.Gom.Left, 120.0);
        desk.mouse.release(Button::Left, {140, 100});
        QVERIFY(!desk.design.Gom.Visible);
    }

    void TheSelectionIsHeldAtItsStartAndKept() {
        Desk desk(20);
        QSignalSpy made(&desk.design, &Design::selectionMade);
        desk.mouse.press(Button::Left, {50, 60});
        QCOMPARE(desk.design.XYcor.Caption, " 0,0 ");
        QCOMPARE(desk.design.XYcor.Left, 47.0);
        QCOMPARE(desk.design.XYcor.Top, 45.0);
        desk.mouse.move({40, 90});
        QCOMPARE(desk.design.Layer.Width, 1.0);
        QCOMPARE(desk.design.XYcor.Caption, " 1,31 ");
        desk.mouse.move({500, 80});
        QCOMPARE(desk.design.Layer.Width, 451.0);
        desk.mouse.release(Button::Left, {500, 80});
        QCOMPARE(made.size(), 1);
        QCOMPARE(desk.design.SelectieBreedte, 451.0);
        QCOMPARE(desk.design.SelectieHoogte, 21.0);
        QVERIFY(desk.design.Layer.Visible);
        QVERIFY(!desk.design.XYcor.Visible);
        comparePictures(desk.design.Pic().Image(), PixelSurface(440, 640).Image());
    }

    void TheRightButtonPicksTheColourInAnyTool() {
        for (int tool : {0, 1, 18, 20, 50, 999}) {
            Desk desk(tool);
            desk.design.change([](PixelSurface& pic) { pic.PSet(5, 5, RGB(1, 2, 3)); });
            desk.design.Gewijzigd = false;
            desk.mouse.press(Button::Right, {5, 5});
            desk.mouse.move({20, 20});
            desk.mouse.release(Button::Right, {20, 20});
            QCOMPARE(desk.design.Vulkleur, RGB(1, 2, 3));
            QCOMPARE(desk.design.UndoPic().Point(5, 5), RGB(1, 2, 3));
            QVERIFY(!desk.design.Gewijzigd);
        }
    }

    void WithoutAToolTheDesignStays() {
        for (const int tool : {999, 50, 114}) { // none, a floating picture, after a filter
            Desk desk(tool);
            desk.drag({10, 10}, {{60, 60}, {80, 20}});
            comparePictures(desk.design.Pic().Image(), PixelSurface(440, 640).Image());
            QCOMPARE(desk.design.Gewijzigd, tool != 999);
        }
    }

    void ADragEndsAsItBegan() {
        Desk desk(1);
        desk.mouse.press(Button::Left, {10, 10});
        desk.mouse.move({50, 10});
        desk.mouse.press(Button::Right, {50, 30});
        desk.mouse.release(Button::Right, {50, 30});
        QCOMPARE(desk.design.Vulkleur, RGB(200, 250, 0));
        desk.design.TekenModus = 0;
        desk.mouse.move({70, 10});
        desk.mouse.release(Button::Left, {70, 10});
        PixelSurface expected(440, 640);
        expected.Line(10, 10, 70, 10, RGB(60, 60, 60));
        comparePictures(desk.design.Pic().Image(), expected.Image());
    }

    void RulersMarkTensTwentiesFortiesAndTheMiddle() {
        PixelSurface top;
        PixelSurface left;
        TekenMaat(top, left, QSize(440, 640));
        QCOMPARE(top.bounds().size(), QSize(440, 10));
        QCOMPARE(left.bounds().size(), QSize(10, 640));
        QCOMPARE(top.Point(15, 6), RGB(120, 120, 120));
        QCOMPARE(top.Point(15, 5), rulerColor);
        QCOMPARE(left.Point(3, 20), RGB(120, 120, 120));
        QCOMPARE(left.Point(0, 600), RGB(250, 0, 0));
        QCOMPARE(top.Point(5, 9), rulerColor);
        QCOMPARE(top.Point(435, 9), rulerColor);
        QCOMPARE(top.Point(219, 0), RGB(0, 0, 220));
        QCOMPARE(top.Point(221, 9), RGB(0, 0, 220));
        QCOMPARE(left.Point(5, 320), RGB(0, 0, 220));
    }

    void TheClockNamesItsMonths() {
        QCOMPARE(clockText(QDateTime(QDate(2026, 2, 5), QTime(9, 5, 7))),
                 "5 Februarie 2026 / 9:05:07");
    }
};

KAART_TEST(CanvasMouseTest)
#include "CanvasMouseTest.moc"
