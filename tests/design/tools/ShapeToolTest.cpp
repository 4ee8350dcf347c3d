#include "design/tools/CanvasMouse.h"
#include "design/tools/ShapeTable.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QHash>

#include <cmath>

using namespace kaart;
using Button = CanvasMouse::Button;

namespace {

constexpr ColorRef ink = RGB(60, 60, 60);

/// The places that the figures' rules name, worked out as the rules say.
QHash<QString, double> namedPlaces(QPoint from, QPoint to) {
    const double X0 = from.x(), Y0 = from.y(), X = to.x(), Y = to.y();
    const double W = X - X0 + 1, H = Y - Y0 + 1;
    const double Xq = std::floor(X - X0) / 4, Yq = std::floor(Y - Y0) / 4;
    return {{"X0", X0},
            {"Y0", Y0},
            {"X", X},
            {"Y", Y},
            {"Xm", X0 + std::floor(X - X0) / 2},
            {"Ym", Y0 + std::floor(Y - Y0) / 2},
            {"X1q", X0 + Xq},
            {"X3q", X0 + 3 * Xq},
            {"Y1q", Y0 + Yq},
            {"Y3q", Y0 + 3 * Yq},
            {"W/2", X0 + W / 2},
            {"W", X0 + W},
            {"H/4", Y0 + H / 4},
            {"H/2", Y0 + H / 2},
            {"3H/4", Y0 + 3 * H / 4},
            {"H", Y0 + H},
            {"a", X0 + W / 2 + W / 8},
            {"b", Y0 + H / 2 - H / 8},
            {"c", X0 + 3 * (W / 8)},
            {"d", Y0 + H / 2 + H / 8},
            {"e", Y0 + 3 * (H / 8)},
            {"W/8", X0 + W / 8},
            {"7W/8", X0 + W - W / 8},
            {"H/8", Y0 + H / 8},
            {"7H/8", Y0 + H - H / 8}};
}

/// Draws a rule of strokes: "box" and two corners, "oval" or "arc" of full or half radius and a
/// centre, or a path of points.
void drawRule(PixelSurface& pic, const QString& rule, QPoint from, QPoint to) {
    const QHash<QString, double> places = namedPlaces(from, to);
    const QPointF half = QPointF(to - from) / 2;
    for (const QString& stroke : rule.split(QStringLiteral("; "))) {
        const QStringList words = stroke.split(QLatin1Char(' '));
        const auto place = [&](int i) { return places.value(words[i]); };
        if (words[0] == QStringLiteral("box")) {
            pic.Line(place(1), place(2), place(3), place(4), ink, LineMode::Box);
        } else if (words[0] == QStringLiteral("oval") || words[0] == QStringLiteral("arc")) {
            const double end = words[0] == QStringLiteral("arc") ? 3.14F : 2 * std::numbers::pi;
            pic.Circle(place(2), place(3), std::max(half.x(), half.y()) / words[1].toInt(), ink, 0,
                       end, half.y() / half.x());
        } else {
            for (int i = 0; i + 3 < words.size(); i += 2) {
                pic.Line(place(i), place(i + 1), place(i + 2), place(i + 3), ink);
            }
        }
    }
}

/// A design on which a figure is dragged.
struct Desk {
    explicit Desk(int mode, int pen = 1) : design({}) {
        design.TekenModus = mode;
        design.LijnDikte = pen;
    }
    void drag(QPoint from, QPoint to) {
        mouse.press(Button::Left, from);
        mouse.move(to);
        mouse.release(Button::Left, to);
    }

    Design design;
    CanvasMouse mouse{design};
};

} // namespace

class ShapeToolTest : public QObject {
    Q_OBJECT

private slots:
    void EachFigureFollowsItsRule_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("rule");
        const QString star = "W/2 Y0 a b W H/2 a d W/2 H c d X0 H/2 c e W/2 Y0";
        QTest::newRow("box") << 2 << "box X0 Y0 X Y";
        QTest::newRow("ellipse") << 4 << "oval 1 Xm Ym";
        QTest::newRow("triangle") << 5 << "X0 Y Xm Y0 X Y X0 Y";
        QTest::newRow("diamond") << 6 << "X0 Ym Xm Y0 X Ym Xm Y X0 Ym";
        QTest::newRow("pentagon") << 7 << "X0 Y1q Xm Y0 X Y1q X3q Y X1q Y X0 Y1q";
        QTest::newRow("hexagon") << 8 << "X0 Y1q Xm Y0 X Y1q X Y3q Xm Y X0 Y3q X0 Y1q";
        QTest::newRow("heart") << 9 << "arc 2 X1q Y1q; arc 2 X3q Y1q; X Y1q Xm Y X0 Y1q";
        QTest::newRow("cone") << 10 << "arc 1 Xm Ym; X Ym Xm Y X0 Ym";
        QTest::newRow("quatro") << 11
                                << "oval 2 X1q Y1q; oval 2 X3q Y1q; oval 2 X1q Y3q; oval 2 X3q Y3q";
        QTest::newRow("open star") << 13 << star;
        QTest::newRow("star") << 14 << star + "; X0 H/2 W H/2; W/2 Y0 W/2 H; a b c d; c e a d";
        QTest::newRow("box and diamond")
            << 15 << "box W/8 H/8 7W/8 7H/8; X0 H/2 W/2 Y0 W H/2 W/2 H X0 H/2";
        QTest::newRow("two triangles")
            << 16 << "X0 H/4 W H/4 W/2 H X0 H/4; X0 3H/4 W 3H/4 W/2 Y0 X0 3H/4";
        QTest::newRow("five lines") << 17 << "W/2 Y0 W H X0 H/4 W H/4 X0 H W/2 Y0";
    }
    void EachFigureFollowsItsRule() {
        QFETCH(int, mode);
        QFETCH(QString, rule);
        const QPoint from(20, 30);
        for (const QPoint& size :
             {QPoint(1, 1), QPoint(21, 34), QPoint(66, 45), QPoint(103, 203)}) {
            for (int pen : {1, 4}) {
                Desk desk(mode, pen);
                desk.drag(from, from + size);
                PixelSurface expected(440, 640);
                expected.DrawWidth = pen;
                drawRule(expected, rule, from, from + size);
                comparePictures(desk.design.Pic().Image(), expected.Image());
            }
        }
    }

    void TheRasterIsDrawnFromItsLeftTop() {
        Desk desk(12);
        desk.design.Tekenkleur = black;
        desk.design.RasterAfstand = 3;
        desk.drag({1, 1}, {8, 5});
        QCOMPARE(spell(desk.design.Pic().Image().copy(0, 0, 10, 6)),
                 QStringList({"0000000000", "0111111100", "0100100100", "0100100100", "0111111100",
                              "0000000000"}));
    }

    void TheRoundedRectangleIsOutlinedInTheDrawingColour() {
        Desk desk(3);
        desk.design.Tekenkleur = black;
        desk.design.RondeHoek = 4;
        desk.drag({1, 1}, {8, 7});
        QCOMPARE(spell(desk.design.Pic().Image().copy(0, 0, 9, 8)),
                 QStringList({"000000000", "001111100", "010000010", "010000010", "010000010",
                              "010000010", "001111100", "000000000"}));
        QCOMPARE(desk.design.Pic().ForeColor, PixelSurface().ForeColor);
    }

    void OnlyTheFirstThreeCanBeCut() {
        for (int mode = 2; mode <= 17; ++mode) {
            Desk desk(mode);
            desk.design.VormKnippen = true;
            desk.design.change([](PixelSurface& pic) {
                pic.Line(0, 0, 440, 640, colourOf('2'), LineMode::FilledBox);
            });
            desk.drag({20, 30}, {82, 93});
            const QImage& image = desk.design.Pic().Image();
            QCOMPARE(toColorRef(image.pixel(50, 59)) == white, mode <= 4);
            QCOMPARE(toColorRef(image.pixel(50, 30)) == white, mode <= 4);
            QCOMPARE(spell(image).join(QString()).contains(QLatin1Char('?')), mode > 4);
            QVERIFY(desk.design.Pic().FillStyle == Fill::Transparent);
            desk.design.EditUndo();
            QCOMPARE(desk.design.Pic().Point(50, 59), colourOf('2'));
        }
    }

    void ADragThatIsNotDownAndRightDrawsNothing() {
        for (const QPoint& to :
             {QPoint(99, 150), QPoint(150, 99), QPoint(100, 150), QPoint(150, 100)}) {
            Desk desk(14);
            desk.drag({100, 100}, to);
            comparePictures(desk.design.Pic().Image(), PixelSurface(440, 640).Image());
            const QPoint way(std::max(0, to.x() - 100), std::max(0, to.y() - 100));
            QCOMPARE(desk.design.XYcor.Caption,
                     QStringLiteral(" %1,%2 ").arg(way.x()).arg(way.y()));
            QVERIFY(!desk.design.Layer.Visible);
        }
    }
};

KAART_TEST(ShapeToolTest)
#include "ShapeToolTest.moc"
