#include "design/tools/FrameRings.h"

#include "design/surface/GraphicsCalls.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

class FrameRingsTest : public QObject {
    Q_OBJECT

    using Ring = Rows<QString, QRect, QStringList>; // the colours of the row y = 1, from x = 6

private slots:
    void RingsFollowTheSecondRowFromOutsideToInside_data() {
        const Ring row;
        row("the first one pixel outside", "1", {2, 2, 2, 2},
            {"000000", "011110", "010010", "010010", "011110", "000000"});
        row("a gap lets the ground through", "501", {1, 1, 4, 4},
            {"555555", "500005", "501105", "501105", "500005", "555555"});
        row("past the middle they grow again", "0015", {2, 2, 2, 2},
            {"000000", "055550", "051150", "051150", "055550", "000000"});
        row("the edge runs off", "51", {0, 0, 7, 7},
            {"111111", "100000", "100000", "100000", "100000", "100000"});
    }
    void RingsFollowTheSecondRowFromOutsideToInside() {
        const auto [colours, box, expected] = Ring::now();
        PixelSurface frame(80, 80);
        frame.Line(0, 2, 79, 79, black, LineMode::FilledBox);
        frame.Line(0, 0, 5, 79, black, LineMode::FilledBox);
        for (int i = 0; i < colours.size(); ++i) {
            frame.PSet(6 + i, 1, colourOf(colours[i].toLatin1()));
        }
        PixelSurface pic(6, 6);
        TekenLijst(pic, frame, box.left(), box.top(), box.right(), box.bottom());
        QCOMPARE(spell(pic), expected);
    }

    void AlmostWhiteIsNoRing() {
        for (const auto& [colour, drawn] :
             {std::pair(RGB(249, 249, 249), true), std::pair(RGB(250, 0, 0), false),
              std::pair(RGB(0, 250, 0), false), std::pair(RGB(0, 0, 250), false)}) {
            PixelSurface frame(80, 80);
            frame.PSet(79, 1, colour);
            PixelSurface pic(200, 200);
            TekenLijst(pic, frame, 0, 0, 199, 199);
            QCOMPARE(pic.Point(72, 100) == colour, drawn);
        }
        PixelSurface pic(9, 9);
        TekenLijst(pic, PixelSurface(3, 1), 0, 0, 8, 8); // smaller than a frame file should be
        comparePictures(pic.Image(), PixelSurface(9, 9).Image());
    }
};

KAART_TEST(FrameRingsTest)
#include "FrameRingsTest.moc"
