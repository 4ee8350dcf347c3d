#include "generators/window/BallonForm.h"

#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/tools/FloatingPicture.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QLabel>
#include <QScrollBar>
#include <QSet>

using namespace kaart;

class BallonFormTest : public QObject {
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
        Design design({});
        design.change([](PixelSurface& pic) {
            pic.Line(0, 0, 439, 639, RGB(0, 0, 255), LineMode::FilledBox);
        });
        BallonForm form(design);
        form.show();
        const auto press = [&](const QString& name) {
            QTest::mouseClick(form.findChild<VistaButton*>(name), Qt::LeftButton);
        };
        press("Knop(3)");
        press("FlipHorKnop");
        press(QStringLiteral("Knop(%1)").arg(index));
        const QImage plain = control<SurfaceView>(form, "Pic").Image();
        QTest::keyClick(&control<QScrollBar>(form, "HScroll1"), Qt::Key_End);
        QTest::keyClick(&control<QScrollBar>(form, "VScroll1"), Qt::Key_Home);
        QCOMPARE(control<QLabel>(form, "Label4").text(), QStringLiteral("1000 x 10 Pixels"));
        control<QScrollBar>(form, "HScroll1").setValue(300);
        press("FlipHorKnop");
        press("FlipVerKnop");
        control<QScrollBar>(form, "VScroll1").setValue(200);
        press("ExportKnop");

        QVERIFY(!form.isVisible() && design.ClipPic.Visible);
        QCOMPARE(design.TekenModus, 50);
        PixelSurface expected(300, 200);
        expected.PaintPicture(plain.mirrored(true, true), 0, 0, 300, 200, 0, 0, 150, 100);
        comparePictures(design.ClipPic.Image(), expected.Image());
        SilentRhythm silent;
        Plak(design, 5, silent);
        QSet<ColorRef> colours;
        for (int y = 0; y < 640; ++y) {
            for (int x = 0; x < 440; ++x) {
                colours << design.Pic().Point(x, y);
            }
        }
        // The ground, the line and the paper: no white, and nothing in between.
        QCOMPARE(colours, QSet<ColorRef>({RGB(0, 0, 255), black, RGB(255, 255, 240)}));
        QCOMPARE(design.Pic().Point(151, 121), RGB(255, 255, 240));
    }
};

KAART_TEST(BallonFormTest)
#include "BallonFormTest.moc"
