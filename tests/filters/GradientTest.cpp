#include "filters/Gradient.h"
#include "tests/support/LiteralGradient.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

class GradientTest : public QObject {
    Q_OBJECT

    using Circle = Rows<QSize, int, QPointF, int>; // size, steps, centre and pen

private slots:
    void EveryDirectionEqualsItsBands_data() {
        QTest::addColumn<QSize>("size");
        // Steps of 0 and 1 twip, of nearly a pixel, of more than one, and lines with long ends.
        for (const QSize size : {QSize(440, 640),
                                 {640, 440},
                                 {57, 33},
                                 {20, 30},
                                 {1, 200},
                                 {1325, 97},
                                 {91, 2003},
                                 {2600, 7},
                                 {3, 3500}}) {
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
        }
    }
    void EveryDirectionEqualsItsBands() {
        QFETCH(QSize, size);
        std::mt19937 random(7);
        const QImage ground = randomPicture(size.width(), size.height(), random);
        for (int direction = 0; direction < 8; ++direction) {
            const ColorRef a = random() & 0xFFFFFFU;
            const ColorRef b = random() & 0xFFFFFFU;
            PixelSurface got(size.width(), size.height());
            got.setPicture(ground);
            got.DrawWidth = static_cast<int>(random() % 9);
            got.Refresh();
            PixelSurface expected = got;
            GradientFillPicture(got, a, direction, b);
            literalGradient(expected, a, direction, b);
            comparePictures(got.Image(), expected.Image());
            QCOMPARE(got.DrawWidth, expected.DrawWidth);
            QCOMPARE(got.ScaleMode, ScaleUnit::Pixels);
            QVERIFY(!got.Refresh().isEmpty());
        }
    }

    void CirclesEqualTheirBands_data() {
        const Circle row;
        const QPointF middle(-1, -1);
        row("upright", {440, 640}, 255, middle, 1);
        row("lying, pen 2", {640, 440}, 255, middle, 2);
        row("pen 25", {200, 301}, 255, middle, 25);
        row("odd sides", {57, 33}, 255, middle, 1);
        row("few steps", {101, 202}, 7, middle, 3);
        row("one step", {4, 4}, 1, middle, 1);
        row("off the middle", {121, 80}, 60, {30.3, -1}, 4);
        row("outside", {50, 40}, 90, {70.5, 100.25}, 1);
    }
    void CirclesEqualTheirBands() {
        const auto [size, steps, centre, pen] = Circle::now();
        for (const ScaleUnit unit : {ScaleUnit::Pixels, ScaleUnit::Twips}) {
            std::mt19937 random(9);
            const ColorRef a = random() & 0xFFFFFFU;
            const ColorRef b = random() & 0xFFFFFFU;
            PixelSurface got(size.width(), size.height());
            got.setPicture(randomPicture(size.width(), size.height(), random));
            got.ScaleMode = unit;
            got.DrawWidth = pen;
            PixelSurface expected = got;
            const float scale = unit == ScaleUnit::Twips ? 15 : 1;
            const auto cx = static_cast<float>(centre.x()) * scale;
            const auto cy = static_cast<float>(centre.y()) * scale;
            GradientCircle(got, a, b, steps, cx, cy);
            literalCircle(expected, a, b, steps, cx, cy);
            comparePictures(got.Image(), expected.Image());
            QCOMPARE(got.FillStyle, Fill::Transparent);
        }
    }

    void WhatHasNoMeasureChangesNothing() {
        PixelSurface none;
        GradientFillPicture(none, black, 0, white);
        PixelSurface surface(3, 3);
        GradientCircle(surface, black, black, 0, -1, -1);
        GradientCircle(surface, black, black, 9, 40000, 1);
        GradientCircle(surface, black, black, 9, std::nanf(""), 1);
        comparePictures(surface.Image(), PixelSurface(3, 3).Image());
    }
};

KAART_TEST(GradientTest)
#include "GradientTest.moc"
