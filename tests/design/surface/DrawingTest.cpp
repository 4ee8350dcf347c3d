#include "design/surface/PixelSurface.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <cmath>

using namespace kaart;

namespace {

constexpr ColorRef ink = black;
constexpr ColorRef red = RGB(255, 0, 0);

/// Whether a pixel's centre lies within the capsule of a pen, worked out the long way.
bool inCapsule(int x, int y, QPoint from, QPoint to, int width) {
    const double lean = width % 2 == 0 ? 0.5 : 0;
    const QPointF p(x + lean, y + lean);
    const QPointF axis = to - from;
    const double length = QPointF::dotProduct(axis, axis);
    const double t =
        length > 0 ? std::clamp(QPointF::dotProduct(p - from, axis) / length, 0.0, 1.0) : 0;
    const QPointF away = p - from - t * axis;
    return QPointF::dotProduct(away, away) <= width * width / 4.0 + 1e-9;
}

QPoint randomPoint(std::mt19937& random, int low, int high) {
    std::uniform_int_distribution<int> any(low, high);
    const int x = any(random);
    return {x, any(random)};
}

} // namespace

class DrawingTest : public QObject {
    Q_OBJECT

    using Line = Rows<QPoint, QPoint, QStringList>;

private slots:
    void ThinLinesLeaveOutTheirEnd_data() {
        const Line row;
        row("right", {0, 0}, {4, 0}, {"11110", "00000", "00000"});
        row("left", {4, 0}, {0, 0}, {"01111", "00000", "00000"});
        row("down", {2, 0}, {2, 2}, {"00100", "00100", "00000"});
        row("nothing", {2, 1}, {2, 1}, {"00000", "00000", "00000"});
        row("half goes up", {0, 0}, {2, 1}, {"11000", "00000", "00000"});
        row("shallow", {0, 0}, {5, 2}, {"11000", "00110", "00001"});
        row("shallow back", {4, 2}, {-1, 0}, {"10000", "01100", "00011"});
        row("diagonal", {3, 0}, {0, 3}, {"00010", "00100", "01000"});
        row("steep", {1, 2}, {2, -1}, {"00100", "01000", "01000"});
        row("from outside", {-2, 1}, {3, 1}, {"00000", "11100", "00000"});
    }
    void ThinLinesLeaveOutTheirEnd() {
        const auto [from, to, picture] = Line::now();
        PixelSurface surface(5, 3);
        surface.Line(from.x(), from.y(), to.x(), to.y(), ink);
        QCOMPARE(spell(surface), picture);
    }

    void ClippingNeverMovesTheRemainingPixels() {
        std::mt19937 random(1);
        for (int round = 0; round < 200; ++round) {
            const QPoint from = randomPoint(random, -30, 50);
            const QPoint to = randomPoint(random, -30, 50);
            const int width = round % 6;
            PixelSurface whole(120, 120);
            PixelSurface part(20, 20);
            for (PixelSurface* surface : {&whole, &part}) {
                surface->DrawWidth = width;
                const int move = surface == &whole ? 40 : 0;
                surface->Line(from.x() + move, from.y() + move, to.x() + move, to.y() + move, ink);
            }
            comparePictures(part.Image(), whole.Image().copy(40, 40, 20, 20));
        }
    }

    void WideLinesAreTheirCapsule() {
        std::mt19937 random(2);
        for (int round = 0; round < 150; ++round) {
            const QPoint from = randomPoint(random, -3, 34);
            const QPoint to = round % 10 == 0 ? from : randomPoint(random, -3, 34);
            const int width = 2 + round % 9;
            PixelSurface surface(32, 32);
            surface.DrawWidth = width;
            surface.Line(from.x(), from.y(), to.x(), to.y(), ink);
            QImage expected = PixelSurface(32, 32).Image();
            for (int y = 0; y < 32; ++y) {
                for (int x = 0; x < 32; ++x) {
                    if (inCapsule(x, y, from, to, width)) {
                        expected.setPixel(x, y, toPixel(ink));
                    }
                }
            }
            comparePictures(surface.Image(), expected);
        }
    }

    void PenTwoIsTheBlockUpAndLeftOfThePoint() {
        PixelSurface surface(4, 4);
        surface.DrawWidth = 2;
        surface.Line(2, 2, 2, 2, ink);
        QCOMPARE(spell(surface), QStringList({"0000", "0110", "0110", "0000"}));
    }

    void BoxesIncludeBothCorners() {
        PixelSurface surface(6, 5);
        surface.Line(4, 3, 1, 1, ink, LineMode::Box);
        QCOMPARE(spell(surface), QStringList({"000000", "011110", "010010", "011110", "000000"}));
        surface.FillStyle = Fill::Solid;
        surface.FillColor = red;
        surface.Line(1, 1, 4, 3, ink, LineMode::Box);
        QCOMPARE(spell(surface), QStringList({"000000", "011110", "012210", "011110", "000000"}));
        surface.DrawWidth = 5;
        surface.Line(3, 2, 3, 9, red, LineMode::FilledBox);
        QCOMPARE(spell(surface), QStringList({"000000", "011110", "012210", "011210", "000200"}));
    }

    void EllipsesTouchAllFourSidesOfTheirBox() {
        PixelSurface surface(7, 7);
        surface.FillStyle = Fill::Solid;
        surface.FillColor = red;
        surface.Circle(3, 3, 3, ink);
        QCOMPARE(spell(surface), QStringList({"0011100", "0122210", "1222221", "1222221", "1222221",
                                              "0122210", "0011100"}));
        PixelSurface flat(9, 5);
        flat.Circle(4, 2, 4, ink, 0, 2 * std::numbers::pi, 0.5);
        QCOMPARE(spell(flat),
                 QStringList({"001111100", "010000010", "100000001", "010000010", "001111100"}));
    }

    void EllipsesAreSymmetricAtEverySize() {
        for (int width = 1; width <= 40; width += 3) {
            for (int height = 1; height <= 40; ++height) {
                PixelSurface surface(width, height);
                surface.RoundRect(0, 0, width, height, width, height);
                const QImage& box = surface.Image();
                comparePictures(box, box.mirrored(true, false));
                comparePictures(box, box.mirrored(false, true));
                for (const QString& row : spell(box)) {
                    QVERIFY(row.contains(QLatin1Char('1')));
                }
            }
        }
    }

    void ArcsRunCounterClockwiseFromEast() {
        PixelSurface surface(7, 7);
        surface.Circle(3, 3, 3, ink, 0, 3.14F);
        QCOMPARE(spell(surface), QStringList({"0011100", "0100010", "1000001", "1000001", "0000000",
                                              "0000000", "0000000"}));
    }

    void RoundRectLeavesOutRightAndBottom() {
        PixelSurface surface(8, 6);
        surface.RoundRect(0, 0, 7, 5, 4, 4);
        QCOMPARE(spell(surface), QStringList({"01111100", "10000010", "10000010", "10000010",
                                              "01111100", "00000000"}));
        PixelSurface large(8, 6);
        large.FillStyle = Fill::Solid;
        large.FillColor = red;
        large.RoundRect(0, 0, 5, 5, 100, 100);
        QCOMPARE(spell(large), QStringList({"01110000", "12221000", "12221000", "12221000",
                                            "01110000", "00000000"}));
    }

    void InvertedFiguresVanishWhenDrawnTwice() {
        std::mt19937 random(3);
        const QImage ground = randomPicture(40, 40, random);
        PixelSurface surface(40, 40);
        for (int width = 1; width <= 10; ++width) {
            surface.setPicture(ground);
            surface.DrawMode = PenMode::Invert;
            surface.DrawWidth = width;
            surface.FillStyle = width % 2 == 0 ? Fill::Solid : Fill::Transparent;
            for (int round = 0; round < 2; ++round) {
                surface.Line(5, 8, 30, 22, ink);
                surface.Line(4, 4, 35, 30, ink, LineMode::Box);
                surface.Circle(20, 20, 12, ink, 0, 7, 0.7);
                surface.RoundRect(2, 2, 38, 30, 9, 11);
                if (round == 0) {
                    QVERIFY(surface.Image() != ground);
                }
            }
            comparePictures(surface.Image(), ground);
        }
    }

    void FiguresOfAnySizeDrawNothingOutside() {
        PixelSurface surface(5, 5);
        for (double far : {-1e9, -7.0, 40.0, 1e9}) {
            surface.Circle(far, 2, 3, ink);
            surface.Line(far, 0, far, 4, ink, LineMode::Box);
            surface.PSet(far, 1, ink);
            QCOMPARE(surface.Point(far, 1), noColor);
        }
        surface.Circle(2, 2, -1, ink);
        surface.Circle(2, 2, NAN, ink);
        QCOMPARE(spell(surface), QStringList(5, "00000"));
    }
};

KAART_TEST(DrawingTest)
#include "DrawingTest.moc"
