#include "design/surface/GraphicsCalls.h"
#include "design/surface/Numbers.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

class PixelSurfaceTest : public QObject {
    Q_OBJECT

private slots:
    void ClsBringsBackThePictureOrTheGround() {
        PixelSurface surface(3, 2, colourOf('9'));
        surface.Line(0, 0, 3, 0, black);
        surface.Cls();
        QCOMPARE(spell(surface), QStringList({"999", "999"}));
        surface.setPicture(pictureOf({"12", "34", "56"}));
        surface.Line(0, 0, 3, 0, black);
        surface.Cls();
        QCOMPARE(spell(surface), QStringList({"129", "349"}));
        surface.AutoSize = true;
        surface.setPicture(pictureOf({"12", "34", "56"}));
        QCOMPARE(spell(surface), QStringList({"12", "34", "56"}));
        surface.setPicture({});
        QCOMPARE(spell(surface), QStringList({"99", "99", "99"}));
    }

    void SizesAreInTheUnitOfTheParent() {
        PixelSurface surface(2, 2);
        surface.ParentUnit = ScaleUnit::Twips;
        surface.Line(0, 0, 2, 0, black);
        surface.setSize(45, 30);
        QCOMPARE(surface.bounds().size(), QSize(3, 2));
        QCOMPARE(surface.Width(), 45.0);
        QCOMPARE(surface.ScaleWidth(), 3.0);
        QCOMPARE(spell(surface), QStringList({"110", "000"}));
        surface.ScaleMode = ScaleUnit::Twips;
        QCOMPARE(surface.ScaleHeight(), 30.0);
        surface.Line(0, 15, 30, 30, black, LineMode::FilledBox);
        QCOMPARE(spell(surface), QStringList({"110", "111"}));
    }

    void CopiesShareUntilOneIsDrawnOn() {
        PixelSurface first(2, 1);
        PixelSurface second = first;
        const QImage image = first.Image();
        first.PSet(0, 0, black);
        QCOMPARE(spell(first), QStringList("10"));
        QCOMPARE(spell(second), QStringList("00"));
        QCOMPARE(spell(image), QStringList("00"));
    }

    void RefreshTellsWhatWasDrawn() {
        PixelSurface surface(20, 20);
        surface.Refresh();
        surface.PSet(3, 4, black);
        surface.Line(5, 5, 9, 5, black);
        const QRect changed = surface.Refresh();
        QVERIFY(changed.contains(QRect(3, 4, 6, 2)) && changed.width() < 10);
        QVERIFY(surface.Refresh().isEmpty());
    }

    void PixelsOutsideAnswerNoColour() {
        PixelSurface surface(2, 1);
        QCOMPARE(SetPixel(surface, 1, 0, RGB(1, 2, 3)), RGB(1, 2, 3));
        QCOMPARE(GetPixel(surface, 1, 0), RGB(1, 2, 3));
        QCOMPARE(SetPixel(surface, 2, 0, black), noColor);
        QVERIFY(!SetPixelV(surface, 0, -1, black));
        QCOMPARE(GetPixel(surface, -1, 0), noColor);
    }

    void TextStandsBelowAndRightOfItsPoint() {
        PixelSurface surface(200, 80);
        surface.FontSize = 12;
        surface.CurrentX = 20;
        surface.CurrentY = 10;
        const QString text = "Hxg";
        surface.Print(text);
        const QRect ink = inkOf(surface);
        const int height = roundEven(surface.TextHeight(text));
        QVERIFY(height >= 16 && height <= 20);
        QVERIFY(ink.left() >= 20 && ink.right() <= 20 + surface.TextWidth(text));
        QVERIFY(ink.top() >= 10 && ink.bottom() < 10 + height);
        QVERIFY(ink.height() > 12);
        QCOMPARE(surface.CurrentY, 10.0 + height);
        for (int y = ink.top(); y <= ink.bottom(); ++y) {
            for (int x = ink.left(); x <= ink.right(); ++x) {
                const ColorRef c = surface.Point(x, y);
                QVERIFY(redOf(c) == greenOf(c) && greenOf(c) == blueOf(c));
            }
        }
    }

    void OpaqueTextStandsOnTheBackColour() {
        PixelSurface surface(60, 30);
        surface.BackColor = colourOf('2');
        surface.FontTransparent = false;
        surface.Print("i");
        QCOMPARE(surface.Point(0, 0), colourOf('2'));
        QCOMPARE(surface.Point(50, 0), white);
    }

    void SlopingTextTurnsCounterClockwiseAboutItsTopLeft() {
        PixelSurface surface(200, 200);
        const auto printed = [&surface](int turned, QPoint at) {
            surface.Cls();
            surface.SelectFont(SlopingFont{20, turned, 400, false, false, false, "Arial"});
            surface.CurrentX = at.x();
            surface.CurrentY = at.y();
            surface.Print("Omhoog");
            return inkOf(surface);
        };
        const QRect up = printed(900, {100, 150});
        QVERIFY(up.left() >= 100 && up.right() < 121 && up.bottom() <= 150 && up.top() > 60);
        const QRect flat = printed(0, {10, 10});
        QVERIFY(qAbs(flat.width() - up.height()) <= 2 && qAbs(flat.height() - up.width()) <= 2);
        QCOMPARE(surface.TextHeight(QString()), 20.0);
    }

    void TwipsBecomePixelsHalfToEven() {
        QCOMPARE(pixels(17790), 1186);
        QCOMPARE(pixels(-22), -1);
        QCOMPARE(pixels(-23), -2);
        QCOMPARE(roundEven(2.5), 2);
        QCOMPARE(roundEven(3.5), 4);
        QCOMPARE(roundEven(NAN), 0);
        QCOMPARE(RGB(300, -1, 2), ColorRef{0x000200FF});
    }
};

KAART_TEST(PixelSurfaceTest)
#include "PixelSurfaceTest.moc"
