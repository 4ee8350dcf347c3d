#include "tests/support/Pictures.h"

#include "design/surface/GraphicsCalls.h"

#include <QtTest>

using namespace kaart;

namespace {

constexpr std::array<ColorRef, 10> palette = {
    RGB(255, 255, 255), RGB(0, 0, 0),      RGB(255, 0, 0),  RGB(0, 255, 0),
    RGB(0, 0, 255),     RGB(40, 40, 40),   RGB(80, 80, 80), RGB(120, 120, 120),
    RGB(160, 160, 160), RGB(200, 200, 200)};

} // namespace

ColorRef colourOf(char digit) {
    return palette.at(static_cast<std::size_t>(digit - '0'));
}

QStringList spell(const QImage& picture) {
    QStringList rows;
    const ConstPixelSpan span = spanOf(picture);
    for (int y = 0; y < span.height; ++y) {
        QString row;
        for (int x = 0; x < span.width; ++x) {
            const auto found =
                std::find(palette.begin(), palette.end(), toColorRef(span.row(y)[x]));
            row += found == palette.end()
                       ? QLatin1Char('?')
                       : QLatin1Char(static_cast<char>('0' + (found - palette.begin())));
        }
        rows << row;
    }
    return rows;
}

QStringList spell(const PixelSurface& surface) {
    return spell(surface.Image());
}

QImage pictureOf(const QStringList& rows) {
    QImage picture(static_cast<int>(rows.value(0).size()), static_cast<int>(rows.size()),
                   QImage::Format_RGB32);
    const PixelSpan span = spanOf(picture);
    for (int y = 0; y < span.height; ++y) {
        for (int x = 0; x < span.width; ++x) {
            span.row(y)[x] = toPixel(colourOf(rows[y][x].toLatin1()));
        }
    }
    return picture;
}

QImage randomPicture(int width, int height, std::mt19937& random, int colours) {
    QImage picture(width, height, QImage::Format_RGB32);
    const PixelSpan span = spanOf(picture);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto value = static_cast<std::uint32_t>(random());
            span.row(y)[x] =
                0xFF000000U | (colours > 0 ? value % static_cast<unsigned>(colours) * 0x203040U
                                           : value & 0x00FFFFFFU);
        }
    }
    return picture;
}

QRect inkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (toColorRef(picture.pixel(x, y)) != white) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

void comparePictures(const QImage& got, const QImage& expected) {
    QCOMPARE(got.size(), expected.size());
    for (int y = 0; y < got.height(); ++y) {
        for (int x = 0; x < got.width(); ++x) {
            if (got.pixel(x, y) != expected.pixel(x, y)) {
                got.save(QStringLiteral("got.png"));
                expected.save(QStringLiteral("expected.png"));
                QFAIL(qPrintable(QStringLiteral("pixel (%1, %2) is %3 instead of %4")
                                     .arg(x)
                                     .arg(y)
                                     .arg(got.pixel(x, y), 8, 16)
                                     .arg(expected.pixel(x, y), 8, 16)));
            }
        }
    }
}
