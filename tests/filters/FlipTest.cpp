#include "filters/Flip.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

class FlipTest : public QObject {
    Q_OBJECT

private slots:
    void FlipsMirrorAndTwiceGiveThePictureBack() {
        PixelSurface surface;
        surface.AutoSize = true;
        surface.setPicture(pictureOf({"123", "456"}));
        FlipHorizontal(surface);
        QCOMPARE(spell(surface), QStringList({"321", "654"}));
        FlipVertical(surface);
        QCOMPARE(spell(surface), QStringList({"654", "321"}));
        std::mt19937 random(3);
        for (const QSize size : {QSize(1, 1), QSize(17, 8), QSize(64, 33)}) {
            const QImage picture = randomPicture(size.width(), size.height(), random);
            for (auto* flip : {FlipHorizontal, FlipVertical}) {
                surface.setPicture(picture);
                flip(surface);
                flip(surface);
                comparePictures(surface.Image(), picture);
            }
        }
    }
};

KAART_TEST(FlipTest)
#include "FlipTest.moc"
