#include "design/tools/FrameRings.h"

#include "design/surface/GraphicsCalls.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

class FrameRingsTest : public QObject {
    Q_OBJECT

private slots:
    void RingsFollowTheSecondRowFromOutsideToInside_data() {
        QTest::addColumn<QString>("colours"); // of the row y = 1, from x = 6
        QTest::addColumn<QRect>("box");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("the first one pixel outside")
            << "1" << QRect(QPoint(2, 2), QPoint(3, 3))
            << QStringList{"000000", "011110", "010010", "010010", "011110", "000000"};
        QTest::newRow("a gap lets the ground through")
            << "501" << QRect(QPoint(1, 1), QPoint(4, 4))
            << QStringList{"555555", "500005", "501105", "501105", "500005", "555555"};
        QTest::newRow("past the middle they grow again")
            << "0015" << QRect(QPoint(2, 2), QPoint(3, 3))
            << QStringList{"000000", "055550", "051150", "051150", "055550", "000000"};
        QTest::newRow("the edge runs off")
            << "51" << QRect(QPoint(0, 0), QPoint(6, 6))
            << QStringList{"111111", "100000", "100000", "100000", "100000", "100000"};
    }
    void RingsFollowTheSecondRowFromOutsideToInside() {
        QFETCH(QString, colours);
        QFETCH(QRect, box);
        QFETCH(QStringList, expected);
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
