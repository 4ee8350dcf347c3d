#include "design/session/Design.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

const ProgramFolders nowhere{"/nonexistent", "/nonexistent"};

void drawDot(PixelSurface& pic) {
    pic.PSet(3, 3, black);
}

} // namespace

class DesignTest : public QObject {
    Q_OBJECT

private slots:
    void TheGateTakesUndoMarksAndShows() {
        Design design(nowhere);
        QSignalSpy shown(&design, &Design::picChanged);
        design.change(drawDot);
        QCOMPARE(design.Pic().Point(3, 3), black);
        QCOMPARE(design.UndoPic().Point(3, 3), white);
        QVERIFY(design.Gewijzigd);
        QCOMPARE(shown.size(), 1);
    }

    void UndoGoesBackOneStepAndStaysThere() {
        Design design(nowhere);
        design.change(drawDot);
        design.change([](PixelSurface& pic) { pic.PSet(5, 5, black); });
        for (int round = 0; round < 2; ++round) {
            design.Gewijzigd = false;
            design.EditUndo();
            QCOMPARE(design.Pic().Point(3, 3), black);
            QCOMPARE(design.Pic().Point(5, 5), white);
            QVERIFY(design.Gewijzigd);
        }
        // What was brought back is the ground now.
        design.changeFurther([](PixelSurface& pic) {
            pic.PSet(5, 5, black);
            pic.Cls();
        });
        QCOMPARE(design.Pic().Point(3, 3), black);
        QCOMPARE(design.Pic().Point(5, 5), white);
    }

    void ANewDesignKeepsTheFlagAndTheUndoCopy() {
        Design design(nowhere);
        design.change(drawDot);
        design.takeUndo();
        design.OntwerpNaam = "Feest";
        design.FileNew();
        QCOMPARE(design.Pic().Point(3, 3), white);
        QCOMPARE(design.OntwerpNaam, QString());
        QVERIFY(design.Gewijzigd);
        design.EditUndo();
        QCOMPARE(design.Pic().Point(3, 3), black);
    }

    void AnOpenedPictureIsTheUnchangedDesignAndItsUndoCopy() {
        Design design(nowhere);
        design.Gewijzigd = true;
        QImage picture(440, 640, QImage::Format_RGB32);
        picture.fill(Qt::red);
        design.open(picture, "Rood");
        comparePictures(design.Pic().Image(), picture);
        comparePictures(design.UndoPic().Image(), picture);
        QCOMPARE(design.OntwerpNaam, "Rood");
        QVERIFY(!design.Gewijzigd);
    }

    void APictureOfAnotherSizeIsCutAndFilledUp() {
        Design design(nowhere);
        QImage picture(1000, 80, QImage::Format_RGB32);
        picture.fill(Qt::red);
        design.open(picture, QString());
        QCOMPARE(design.Pic().Image().size(), QSize(440, 640));
        QCOMPARE(design.Pic().Point(439, 79), RGB(255, 0, 0));
        QCOMPARE(design.Pic().Point(0, 80), white);
    }

    void TurningClearsBothPicturesForGood() {
        Design design(nowhere);
        design.open(QImage(440, 640, QImage::Format_RGB32), QString());
        QSignalSpy turned(&design, &Design::orientationChanged);
        design.ZetRichting(2);
        QCOMPARE(design.OntwerpRichting, "Liggend");
        QCOMPARE(design.Pic().Image().size(), QSize(640, 440));
        QCOMPARE(design.UndoPic().Image().size(), QSize(640, 440));
        QCOMPARE(turned.size(), 1);
        design.EditUndo();
        QCOMPARE(design.Pic().Point(10, 10), white);
        design.ZetRichting(1);
        QCOMPARE(design.OntwerpRichting, "Staand");
        QCOMPARE(design.Pic().Image().size(), QSize(440, 640));
    }
};

KAART_TEST(DesignTest)
#include "DesignTest.moc"
