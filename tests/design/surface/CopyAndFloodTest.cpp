#include "design/surface/Blit.h"
#include "design/surface/GraphicsCalls.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// A flood, one pixel at a time.
QImage plainFlood(QImage picture, QPoint start, bool surface, QRgb stop, QRgb fill) {
    const QRgb first = picture.pixel(start);
    QImage seen(picture.size(), QImage::Format_Grayscale8);
    seen.fill(0);
    QList<QPoint> stack;
    const auto visit = [&](QPoint p) {
        if (!picture.rect().contains(p) || seen.scanLine(p.y())[p.x()] != 0) {
            return;
        }
        const QRgb pixel = picture.pixel(p);
        if (surface ? pixel == first : pixel != stop) {
            seen.scanLine(p.y())[p.x()] = 1;
            picture.setPixel(p, fill);
            stack << p;
        }
    };
    visit(start);
    while (!stack.isEmpty()) {
        const QPoint p = stack.takeLast();
        for (const QPoint& step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
            visit(p + step);
        }
    }
    return picture;
}

} // namespace

class CopyAndFloodTest : public QObject {
    Q_OBJECT

private slots:
    void FillStopsAtOtherColoursAndAtTheBorderColour() {
        PixelSurface surface(6, 4);
        surface.setPicture(pictureOf({"001002", "011022", "000102", "333100"}));
        surface.FillColor = colourOf('4');
        QVERIFY(ExtFloodFill(surface, 0, 0, white, FloodType::Surface));
        QCOMPARE(spell(surface), QStringList({"441002", "411022", "444102", "333100"}));
        QVERIFY(FloodFill(surface, 4, 1, black));
        QCOMPARE(spell(surface), QStringList({"441444", "411444", "444144", "333144"}));
    }

    void FillDoesNothingWithoutItsReferenceColour() {
        PixelSurface surface(3, 1);
        surface.setPicture(pictureOf({"012"}));
        surface.FillColor = colourOf('3');
        QVERIFY(!ExtFloodFill(surface, 0, 0, colourOf('2'), FloodType::Surface));
        QVERIFY(!FloodFill(surface, 1, 0, colourOf('1')));
        QVERIFY(!ExtFloodFill(surface, 3, 0, noColor, FloodType::Surface));
        QVERIFY(!FloodFill(surface, -1, 0, white));
        QCOMPARE(spell(surface), QStringList("012"));
    }

    void FloodAgreesWithThePlainOneOnRandomPictures() {
        std::mt19937 random(4);
        for (int round = 0; round < 120; ++round) {
            const int width = 1 + static_cast<int>(random() % 70);
            const int height = 1 + static_cast<int>(random() % 40);
            const QImage picture = randomPicture(width, height, random, 2 + round % 2);
            const QPoint start(static_cast<int>(random() % static_cast<unsigned>(width)),
                               static_cast<int>(random() % static_cast<unsigned>(height)));
            PixelSurface surface(width, height);
            surface.setPicture(picture);
            surface.FillColor = round % 3 == 0 ? black : RGB(1, 2, 3);
            const bool bySurface = round % 2 == 0;
            const QRgb stop = 0xFF203040U;
            ExtFloodFill(surface, start.x(), start.y(),
                         bySurface ? GetPixel(surface, start.x(), start.y()) : toColorRef(stop),
                         bySurface ? FloodType::Surface : FloodType::Border);
            comparePictures(surface.Image(), plainFlood(picture, start, bySurface, stop,
                                                        toPixel(surface.FillColor)));
        }
    }

    void StretchingTakesTheNearestAndShrinkingTheMean() {
        PixelSurface surface(5, 2);
        const QImage two = pictureOf({"12"});
        surface.PaintPicture(two, 0, 0, 5, 2, 0, 0, 2, 1);
        QCOMPARE(spell(surface), QStringList({"11122", "11122"}));
        PixelSurface small(2, 1);
        QImage greys(4, 1, QImage::Format_RGB32);
        const std::array<int, 4> values{0, 80, 81, 160};
        for (int x = 0; x < 4; ++x) {
            const int grey = values.at(static_cast<std::size_t>(x));
            greys.setPixel(x, 0, qRgb(grey, 0, 255));
        }
        small.PaintPicture(greys, 0, 0, 2, 1, 0, 0, 4, 1);
        QCOMPARE(small.Point(0, 0), RGB(40, 0, 255));
        QCOMPARE(small.Point(1, 0), RGB(121, 0, 255));
    }

    void NegativeSizesMirrorExactlyTheSamePixels() {
        std::mt19937 random(5);
        const QImage picture = randomPicture(7, 5, random);
        PixelSurface surface(7, 5);
        surface.setPicture(picture);
        StretchBlt(surface, 0, 0, 7, 5, surface, 6, 0, -7, 5);
        comparePictures(surface.Image(), picture.mirrored(true, false));
        StretchBlt(surface, 6, 4, -7, -5, surface, 0, 0, 7, 5);
        comparePictures(surface.Image(), picture.mirrored(false, true));
        StretchBlt(surface, 6, 0, -7, 5, surface, 6, 0, -7, 5);
        comparePictures(surface.Image(), picture.mirrored(false, true));
    }

    void ClippingNeverChangesWhichSourcePixelServes() {
        std::mt19937 random(6);
        std::uniform_int_distribution<int> any(-20, 20);
        for (int round = 0; round < 300; ++round) {
            const QImage picture = randomPicture(9, 9, random);
            const std::array<int, 8> r{any(random), any(random), any(random), any(random),
                                       any(random), any(random), any(random), any(random)};
            PixelSurface whole(100, 100);
            PixelSurface part(12, 12);
            whole.PaintPicture(picture, r[0] + 44, r[1] + 44, r[2], r[3], r[4], r[5], r[6], r[7]);
            part.PaintPicture(picture, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7]);
            comparePictures(part.Image(), whole.Image().copy(44, 44, 12, 12));
        }
    }

    void RasterOperationsWorkBitByBit() {
        const ColorRef source = RGB(0xF0, 0x3C, 0x00);
        const ColorRef under = RGB(0xCC, 0xAA, 0x55);
        PixelSurface from(1, 1, source);
        PixelSurface target(1, 1, under);
        BitBlt(target, 0, 0, 1, 1, from, 0, 0, RasterOp::And);
        QCOMPARE(target.Point(0, 0), RGB(0xC0, 0x28, 0x00));
        target.Cls();
        BitBlt(target, 0, 0, 1, 1, from, 0, 0, RasterOp::MergePaint);
        QCOMPARE(target.Point(0, 0), RGB(0xCF, 0xEB, 0xFF));
    }

    void ASurfaceCopiedOntoItselfReadsItsOldPixels() {
        PixelSurface surface(5, 1);
        surface.setPicture(pictureOf({"12345"}));
        BitBlt(surface, 1, 0, 5, 1, surface, 0, 0);
        QCOMPARE(spell(surface), QStringList("11234"));
    }

    void WhereTheSourceEndsTheTargetStays() {
        PixelSurface surface(4, 1);
        surface.PaintPicture(pictureOf({"12"}), 0, 0, 4, 1, 1, 0, 4, 1);
        QCOMPARE(spell(surface), QStringList("2000"));
    }
};

KAART_TEST(CopyAndFloodTest)
#include "CopyAndFloodTest.moc"
