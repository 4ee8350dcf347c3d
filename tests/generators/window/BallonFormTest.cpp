#include "generators/window/BallonForm.h"
#include "design/tools/FloatingPicture.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class BallonFormTest : public FormTest<BallonForm> {
    Q_OBJECT

private slots:
    void EveryBalloonComesDownWithoutItsGround_data() {
        QTest::addColumn<int>("index");
        for (int index = 0; index < 4; ++index) {
            QTest::addRow("balloon %d", index) << index;
        }
    }
    void EveryBalloonComesDownWithoutItsGround() {
        QFETCH(int, index);
        begin();
        design_->change([](PixelSurface& pic) {
            pic.Line(0, 0, 439, 639, RGB(0, 0, 255), LineMode::FilledBox);
        });
        open();
        press("Knop(3)");
        press("FlipHorKnop");
        QTest::mouseClick(&part("Knop", index), Qt::LeftButton);
        const QImage plain = image("Pic");
        QTest::keyClick(&part<QScrollBar>("HScroll1"), Qt::Key_End);
        QTest::keyClick(&part<QScrollBar>("VScroll1"), Qt::Key_Home);
        QCOMPARE(text("Label4"), "1000 x 10 Pixels");
        part<QScrollBar>("HScroll1").setValue(300);
        press("FlipHorKnop");
        press("FlipVerKnop");
        part<QScrollBar>("VScroll1").setValue(200);
        press("ExportKnop");

        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        QCOMPARE(design_->TekenModus, 50);
        PixelSurface expected(300, 200);
        expected.PaintPicture(plain.mirrored(true, true), 0, 0, 300, 200, 0, 0, 150, 100);
        comparePictures(design_->ClipPic.Image(), expected.Image());
        SilentRhythm silent;
        Plak(*design_, 5, silent);
        QSet<ColorRef> colours;
        for (int y = 0; y < 640; ++y) {
            for (int x = 0; x < 440; ++x) {
                colours << design_->Pic().Point(x, y);
            }
        }
        // The ground, the line and the paper: no white, and nothing in between.
        QCOMPARE(colours, QSet<ColorRef>({RGB(0, 0, 255), black, RGB(255, 255, 240)}));
        QCOMPARE(design_->Pic().Point(151, 121), RGB(255, 255, 240));
    }
};

KAART_TEST(BallonFormTest)
#include "BallonFormTest.moc"
