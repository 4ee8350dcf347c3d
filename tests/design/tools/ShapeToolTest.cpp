#include "design/tools/CanvasMouse.h"
#include "design/tools/ShapeTable.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <cmath>

using namespace kaart;
using Button = CanvasMouse::Button;

namespace {

constexpr ColorRef ink = RGB(60, 60, 60);

/// A place that a rule names: eighths of the way, such as "x4", the middle; with X or Y the way is
/// a pixel longer.
double placeOf(const QString& name, QPoint from, QPoint to) {
    const bool across = name[0].toLower() == 'x';
    const double start = across ? from.x() : from.y();
    const double way = (across ? to.x() : to.y()) - start + (name[0].isUpper() ? 1 : 0);
    return start + way * name[1].digitValue() / 8;
}

/// Draws a rule of strokes: "box" and two corners, "oval" or "arc" of full or half radius and a
/// centre, or a path of points.
void drawRule(PixelSurface& pic, const QString& rule, QPoint from, QPoint to) {
    const QPointF half = QPointF(to - from) / 2;
    for (const QString& stroke : rule.split("; ")) {
        const QStringList words = stroke.split(QLatin1Char(' '));
        const auto place = [&](int i) { return placeOf(words[i], from, to); };
        if (words[0] == "box") {
            pic.Line(place(1), place(2), place(3), place(4), ink, LineMode::Box);
        } else if (words[0] == "oval" || words[0] == "arc") {
            const double end = words[0] == "arc" ? 3.14F : 2 * std::numbers::pi;
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

    using Figure = Rows<int, QString>;

private slots:
    void EachFigureFollowsItsRule_data() {
        const Figure row;
        const QString star = "X4 y0 X5 Y3 X8 Y4 X5 Y5 X4 Y8 X3 Y5 x0 Y4 X3 Y3 X4 y0";
        row("box", 2, "box x0 y0 x8 y8");
        row("ellipse", 4, "oval 1 x4 y4");
        row("triangle", 5, "x0 y8 x4 y0 x8 y8 x0 y8");
        row("diamond", 6, "x0 y4 x4 y0 x8 y4 x4 y8 x0 y4");
        row("pentagon", 7, "x0 y2 x4 y0 x8 y2 x6 y8 x2 y8 x0 y2");
        row("hexagon", 8, "x0 y2 x4 y0 x8 y2 x8 y6 x4 y8 x0 y6 x0 y2");
        row("heart", 9, "arc 2 x2 y2; arc 2 x6 y2; x8 y2 x4 y8 x0 y2");
        row("cone", 10, "arc 1 x4 y4; x8 y4 x4 y8 x0 y4");
        row("quatro", 11, "oval 2 x2 y2; oval 2 x6 y2; oval 2 x2 y6; oval 2 x6 y6");
        row("open star", 13, star);
        row("star", 14, star + "; x0 Y4 X8 Y4; X4 y0 X4 Y8; X5 Y3 X3 Y5; X3 Y3 X5 Y5");
        row("box and diamond", 15, "box X1 Y1 X7 Y7; x0 Y4 X4 y0 X8 Y4 X4 Y8 x0 Y4");
        row("two triangles", 16, "x0 Y2 X8 Y2 X4 Y8 x0 Y2; x0 Y6 X8 Y6 X4 y0 x0 Y6");
        row("five lines", 17, "X4 y0 X8 Y8 x0 Y2 X8 Y2 x0 Y8 X4 y0");
    }
    void EachFigureFollowsItsRule() {
        const auto [mode, rule] = Figure::now();
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
