#include "design/tools/TextPlacing.h"

#include "design/tools/CanvasMouse.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;
using Button = CanvasMouse::Button;

namespace {

/// One plain print, drawn without the code under test.
QImage printed(const TextStyle& style, QPointF at, const QString& text) {
    PixelSurface surface(440, 640);
    surface.FontName = style.FontName;
    surface.FontSize = style.FontSize;
    surface.FontBold = style.FontBold;
    surface.ForeColor = RGB(60, 60, 60);
    surface.CurrentX = at.x();
    surface.CurrentY = at.y();
    surface.Print(text);
    return surface.Image();
}

} // namespace

class TextPlacingTest : public QObject {
    Q_OBJECT

private slots:
    void EffectsLieRoundTheText() {
        for (const int effects : {0, 1, 2, 3}) {
            Design design({});
            design.Tekst.FontSize = 72;
            design.Tekst.FontBold = true;
            const bool shadow = design.Tekst.Schaduw = (effects & 1) != 0;
            const bool open = design.Tekst.Open = (effects & 2) != 0;
            PixelSurface surface(440, 640);
            PlaatsTekst(design, surface, 50, 70, "HI");
            const QRect plain = inkOf(printed(design.Tekst, {50, 70}, "HI"));
            const int rim = open ? 2 : 0, depth = shadow ? 8 : rim;
            QCOMPARE(inkOf(surface), plain.adjusted(-rim, -rim, depth, depth));

            // Within the last stem, three pixels from its soft edges.
            const QPoint stem = plain.bottomRight() - QPoint(3, 0);
            QCOMPARE(surface.Point(stem.x(), stem.y() - 3),
                     open ? RGB(200, 250, 0) : RGB(60, 60, 60));
            QVERIFY(!open || surface.Point(stem.x(), stem.y() + 1) == RGB(60, 60, 60));
            for (int i = shadow ? 3 : 9; i <= 8; ++i) {
                // The lowest row of a letter is a little soft; the greys are 6 apart.
                const ColorRef grey = surface.Point(stem.x() + i, stem.y() + i);
                QVERIFY(qAbs(redOf(grey) - (180 + 6 * i)) < 3 && redOf(grey) == blueOf(grey));
            }
        }
    }

    void SlopingTextTurnsAboutTheMouse() {
        // With the signs of the way that the text goes from the mouse.
        for (const auto& [degrees, along] : {std::pair(0, QPoint(1, 1)),
                                             {90, QPoint(1, -1)},
                                             {180, QPoint(-1, -1)},
                                             {270, QPoint(-1, 1)}}) {
            Design design({});
            design.Tekst.Text = "Mijn tekst";
            design.Tekst.FontSize = 30;
            design.Tekst.Diagonal = design.Tekst.Schaduw = true;
            design.Tekst.Graden = degrees;
            QVERIFY(hangTextLine(design) && design.TekenModus == 22);
            placeTextLine(design, {220, 320});
            const QRect ink = inkOf(design.Pic());
            const QRect quarter(along.x() > 0 ? 219 : 0, along.y() > 0 ? 319 : 0, 221, 321);
            QVERIFY(quarter.contains(ink));

            PixelSurface straight(440, 640);
            SlopingFont font;
            font.name = "Arial";
            font.height = 46; // 46.5, half to even
            straight.SelectFont(font);
            straight.Print(design.Tekst.Text);
            const QSize size = inkOf(straight).size();
            const QSize got = degrees % 180 == 0 ? ink.size() : ink.size().transposed();
            QVERIFY(qAbs(got.width() - size.width()) <= 2 &&
                    qAbs(got.height() - size.height()) <= 2);
        }
    }

    void AnyButtonPlacesTheHangingLine() {
        for (const Button button : {Button::Left, Button::Right, Button::Other}) {
            Design design({});
            CanvasMouse mouse(design);
            design.Tekst.Text = "Mijn tekst";
            QVERIFY(hangTextLine(design) && design.TekenModus == 21);
            mouse.move({100, 200});
            const double top = 195 - design.TextLabel.Height;
            QCOMPARE(QPointF(design.TextLabel.Left, design.TextLabel.Top), QPointF(100, top));
            mouse.press(button, {100, 200});
            mouse.release(button, {100, 200});
            const QImage placed = printed(design.Tekst, {100, top}, design.Tekst.Text);
            comparePictures(design.Pic().Image(), placed);
            QVERIFY(!design.TextLabel.Visible && !design.TekstHangt && !mouse.dragging());
            mouse.press(button, {10, 20});
            mouse.release(button, {10, 20});
            comparePictures(design.Pic().Image(), placed);
        }
    }

    void AReleaseWhileAnotherTextOrToolWaitsWritesNothing() {
        for (int mode : {23, 20}) {
            Design design({});
            CanvasMouse mouse(design);
            QSignalSpy selections(&design, &Design::selectionMade);
            hangLongText(design, {"Lang"});
            design.TekenModus = mode;
            mouse.press(Button::Left, {10, 10});
            mouse.move({50, 50});
            mouse.release(Button::Left, {50, 50});
            comparePictures(design.Pic().Image(), PixelSurface(440, 640).Image());
            QVERIFY(!design.TekstHangt && design.TextLabel2.Visible && selections.isEmpty());
            QVERIFY(!mouse.dragging() && !design.Layer.Visible && !design.XYcor.Visible);
        }
    }

    void LongTextIsAlignedWithinItsWidestLine() {
        const QStringList lines{"Kom je", QString(), "op mijn verjaardag", "i"};
        for (int alignment = 0; alignment < 3; ++alignment) {
            Design design({});
            design.Tekst.FontSize = 24;
            design.Tekst.Open = design.Tekst.Schaduw = true;
            design.Tekst.Alignment = static_cast<TextAlignment>(alignment);
            hangLongText(design, lines);
            grabLongText(design, {4, 5});
            dragLongText(design, {34, 105});
            const TextOverlay label = design.TextLabel2;
            placeLongText(design, lines);

            PixelSurface expected(440, 640);
            expected.FontSize = 24;
            expected.ForeColor = RGB(60, 60, 60);
            for (int i = 0; i < 4; ++i) {
                const double own = expected.TextWidth(lines[i]);
                // Int rounds the middle down; the line's own half stays.
                const double starts[] = {31, 31 + label.Width - own,
                                         std::floor(31 + label.Width / 2) - own / 2};
                expected.CurrentX = starts[alignment];
                expected.CurrentY = 101 + i * std::nearbyint(label.Height / 4);
                expected.Print(lines[i]);
            }
            comparePictures(design.Pic().Image(), expected.Image());
            QVERIFY(!design.TextLabel2.Visible && !design.TekstHangt && design.Gewijzigd);
            design.EditUndo();
            QCOMPARE(inkOf(design.Pic()), QRect());
        }
    }
};

KAART_TEST(TextPlacingTest)
#include "TextPlacingTest.moc"
