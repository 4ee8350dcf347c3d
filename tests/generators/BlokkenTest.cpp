#include "generators/Blokken.h"
#include "design/surface/GraphicsCalls.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <cmath>

using namespace kaart;

namespace {

/// Changes each channel of a pixel by itself; a pixel outside is left alone.
template <typename Value>
void changePixel(PixelSurface& surface, int x, int y, const Value& value) {
    const ColorRef c = GetPixel(surface, x, y);
    if (c != noColor) {
        SetPixel(surface, x, y, RGB(value(redOf(c)), value(greenOf(c)), value(blueOf(c))));
    }
}

void literalFade(PixelSurface& surface, int p) {
    for (int x = 0; x < surface.ScaleWidth(); ++x) {
        for (int y = 0; y < surface.ScaleHeight(); ++y) {
            changePixel(surface, x, y, [p](int v) {
                const int sum = v * p + (100 - p) * 255;
                const int below = sum / 100;
                const int rest = sum % 100;
                return rest > 50 || (rest == 50 && below % 2 == 1) ? below + 1 : below;
            });
        }
    }
}

void literalBevel(PixelSurface& surface, int width, int inout, double light) {
    const double L = light / 255;
    const auto blend = [&](int x, int y, int c) {
        changePixel(surface, x, y,
                    [&](int v) { return static_cast<int>(std::nearbyint(v - v * L + c * L)); });
    };
    const int a = inout == 1 ? 255 : 0;
    const int w = static_cast<int>(surface.ScaleWidth());
    const int h = static_cast<int>(surface.ScaleHeight());
    for (int i = 0, top = 0, bottom = h - 1; i <= width; ++i, ++top, --bottom) {
        for (int j = top; j <= bottom; ++j) {
            blend(i, j, a);
            blend(w - 1 - i, j, 255 - a);
        }
    }
    for (int i = 0, top = 1, bottom = w - 2; i <= width; ++i, ++top, --bottom) {
        for (int j = top; j <= bottom; ++j) {
            blend(j, i, a);
            blend(j, h - 1 - i, 255 - a);
        }
    }
}

} // namespace

class BlokkenTest : public QObject {
    Q_OBJECT

private slots:
    void FadeAndBevelAreThoseOfTheSlowLoops() {
        std::mt19937 random(11);
        for (const QSize size :
             {QSize(1, 1), QSize(2, 7), QSize(7, 2), QSize(64, 45), QSize(45, 64)}) {
            PixelSurface start(size.width(), size.height());
            start.setPicture(randomPicture(size.width(), size.height(), random));
            for (int p : {0, 1, 37, 50, 99, 100}) {
                PixelSurface got = start;
                PixelSurface expected = start;
                SilentRhythm silent;
                FadePicture(got, p, silent);
                literalFade(expected, p);
                comparePictures(got.Image(), expected.Image());
            }
            for (int width : {5, 10, 20}) {
                for (int light : {10, 50, 100}) {
                    PixelSurface got = start;
                    PixelSurface expected = start;
                    BevelPicture(got, width, light % 3, light);
                    literalBevel(expected, width, light % 3, light);
                    comparePictures(got.Image(), expected.Image());
                }
            }
        }
    }
};

KAART_TEST(BlokkenTest)
#include "BlokkenTest.moc"
