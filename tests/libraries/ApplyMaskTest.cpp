#include "libraries/ApplyMask.h"
#include "design/surface/GraphicsCalls.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// The definition, pixel by pixel.
void literalMask(PixelSurface& pic, const PixelSurface& mask) {
    for (int y = 0; y < mask.ScaleHeight(); ++y) {
        for (int x = 0; x < mask.ScaleWidth(); ++x) {
            const ColorRef c = GetPixel(mask, x, y);
            if (c % 256 > 250 && c / 256 % 256 > 250 && c / 65536 > 250) {
                const bool wide = pic.Width() > pic.Height();
                SetPixel(pic, wide ? x : y, wide ? y : 639 - x, white);
            }
        }
    }
}

/// Round the threshold in every channel.
QImage nearWhite(int width, int height, std::mt19937& random) {
    QImage picture(width, height, QImage::Format_RGB32);
    std::uniform_int_distribution<int> part(249, 255);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.setPixel(x, y, qRgb(part(random), part(random), part(random)));
        }
    }
    return picture;
}

} // namespace

class ApplyMaskTest : public QObject {
    Q_OBJECT

private slots:
    void TheKernelEqualsItsDefinition_data() {
        QTest::addColumn<QSize>("design");
        QTest::addColumn<QSize>("mask");
        QTest::newRow("lying") << QSize(640, 440) << QSize(640, 440);
        QTest::newRow("upright") << QSize(440, 640) << QSize(640, 440);
        QTest::newRow("square counts as upright") << QSize(640, 640) << QSize(300, 200);
        QTest::newRow("large mask") << QSize(440, 640) << QSize(701, 463);
    }
    void TheKernelEqualsItsDefinition() {
        QFETCH(QSize, design);
        QFETCH(QSize, mask);
        std::mt19937 random(7);
        PixelSurface got(design.width(), design.height());
        got.setPicture(randomPicture(design.width(), design.height(), random));
        PixelSurface expected = got;
        PixelSurface source(mask.width(), mask.height());
        source.setPicture(nearWhite(mask.width(), mask.height(), random));
        SilentRhythm silent;
        got.Refresh();
        ApplyMask(got, source.Image(), silent);
        literalMask(expected, source);
        comparePictures(got.Image(), expected.Image());
        const QRect reached(0, 640 - mask.width(), mask.height(), mask.width());
        QCOMPARE(got.Refresh(),
                 got.bounds() &
                     (expected.Width() > expected.Height() ? QRect({0, 0}, mask) : reached));
    }
};

KAART_TEST(ApplyMaskTest)
#include "ApplyMaskTest.moc"
