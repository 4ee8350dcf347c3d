#include "generators/CurvedText.h"
#include "generators/TextColours.h"

#include "design/surface/Random.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

class CurvedTextTest : public QObject {
    Q_OBJECT

    using Glyph = Rows<GlyphPlaces, std::size_t, QPointF>; // counted from 1

private slots:
    void GlyphsStandOnTheirCurve_data() {
        const Glyph row;
        const QPoint o(300, 150);
        row("wave without curves", wavePlaces(3, o, 10, 0, 30), 2, {320, 120});
        row("wave, all on one x", wavePlaces(6, o, 0, 1800, 100), 1, {300, 100.2301});
        row("wave, ten half turns", wavePlaces(6, o, 7, 1800, 100), 6, {342, 50.0127});
        row("line to the east", rotatePlaces(5, o, 0, 25), 5, {425, 150});
        row("line upwards", rotatePlaces(2, o, 270, 50), 2, {299.7611, 50.0003});
        row("stacked circle", circlePlaces(4, o, 0, 90, 360), 3, {300, 150});
        row("circle that doesn't quite close", circlePlaces(12, o, 200, 1, 360), 12,
            {306.3397, -49.8995});
        row("quarter of a turned circle", circlePlaces(4, o, 100, 45, 180), 1,
            {370.7951, 220.6262});
        row("ellipse", ellipsePlaces(2, o, 200, 90, 4, 100, 90), 1, {229.4302, 164.1703});
    }
    void GlyphsStandOnTheirCurve() {
        const auto [places, glyph, expected] = Glyph::now();
        const QPointF got = places.at(glyph - 1);
        QVERIFY2((got - expected).manhattanLength() < 0.001,
                 qPrintable(QString("(%1, %2)").arg(got.x()).arg(got.y())));
    }

    void CurvesStartAtTheMiddleHalvesGoingToTheEvenPixel() {
        QCOMPARE(curveStart(PixelSurface(685, 340), 7, 0), QPoint(342, 150));
        QCOMPARE(curveStart(PixelSurface(687, 341), 3, 9), QPoint(330, 150));
    }

    void ATextReplacesTheOneBeforeIt() {
        PixelSurface surface(200, 100);
        surface.FontSize = 20;
        PixelSurface expected = surface;
        expected.CurrentX = 25;
        expected.CurrentY = 50;
        expected.Print("A");
        WaveText(surface, 0, 80, 30, 700, 40, "Xyz");
        RotateText(surface, 5, 50, 0, 20, "A");
        comparePictures(surface.Image(), expected.Image());
        ElipticText(surface, 5, 50, 10, 1, 1, 1, 360, "");
        comparePictures(surface.Image(), PixelSurface(200, 100).Image());
    }

    void StripesRiseAndFallFiveTimes() {
        PixelSurface pattern(400, 3, RGB(1, 2, 3));
        FillPalette(pattern, 4);
        for (int x = 0; x < 400; ++x) {
            const int phase = x % 67;
            const int tone = 7 * std::min(phase, 67 - phase);
            QCOMPARE(pattern.Point(x, 2), x > 335 ? RGB(1, 2, 3) : RGB(tone, 0, tone));
        }
        const std::array middle = {RGB(231, 231, 231), RGB(231, 0, 0),   RGB(0, 231, 0),
                                   RGB(0, 0, 231),     RGB(231, 0, 231), RGB(231, 231, 0)};
        for (int index = 0; index < 6; ++index) {
            FillPalette(pattern, index);
            QCOMPARE(pattern.Point(33, 0), middle.at(static_cast<std::size_t>(index)));
        }
    }

    void ColouringSparesFullChannelsAndSeedsTheRandomNumbers() {
        PixelSurface text;
        text.AutoSize = true;
        text.setPicture(pictureOf({"0123456", "0123456"}));
        const PixelSurface pattern(7, 2, RGB(120, 120, 120));
        seedRnd(7);
        ColorTextRow(text.writePixels(), pattern.pixels(), 1);
        QCOMPARE(spell(text), QStringList({"0123456", "0723477"}));
        const std::array after{Rnd(), Rnd()};
        seedRnd(7);
        std::array<float, 5> unseeded{};
        fillRnd(unseeded);
        QVERIFY(!std::equal(after.begin(), after.end(), unseeded.begin() + 3));
    }
};

KAART_TEST(CurvedTextTest)
#include "CurvedTextTest.moc"
