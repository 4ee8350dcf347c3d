#include "controls/platform/LiveGrab.h"

#include "design/surface/PixelSurface.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <cmath>

namespace kaart {

namespace {

/// A screen on the desktop, in pixels. Its corner is the same in pixels and in scaled units.
QRect pixelsOf(const QScreen& screen) {
    const QRect scaled = screen.geometry();
    return {scaled.topLeft(), scaled.size() * screen.devicePixelRatio()};
}

/// The fewest whole scaled units that cover so many pixels of a screen.
QRect covering(const QRect& pixels, double ratio) {
    const auto down = [ratio](int pixel) { return static_cast<int>(std::floor(pixel / ratio)); };
    const auto up = [ratio](int pixel) { return static_cast<int>(std::ceil(pixel / ratio)); };
    const QPoint topLeft(down(pixels.left()), down(pixels.top()));
    return {topLeft, QPoint(up(pixels.right() + 1) - 1, up(pixels.bottom() + 1) - 1)};
}

} // namespace

QRect LiveGrab::desktop() const {
    QRect all;
    for (const QScreen* screen : QGuiApplication::screens()) {
        all |= pixelsOf(*screen);
    }
    return all;
}

QPoint LiveGrab::mouse() const {
    const QPoint at = QCursor::pos();
    const QScreen* screen = QGuiApplication::screenAt(at);
    if (screen == nullptr) {
        return at;
    }
    const QPoint corner = screen->geometry().topLeft();
    return corner + (at - corner) * screen->devicePixelRatio();
}

QImage LiveGrab::grab(const QRect& pixels) const {
    PixelSurface seen(pixels.width(), pixels.height(), black);
    bool anything = false;
    for (QScreen* screen : QGuiApplication::screens()) {
        const QRect whole = pixelsOf(*screen);
        const QRect part = pixels & whole;
        if (part.isEmpty()) {
            continue;
        }
        const double ratio = screen->devicePixelRatio();
        const QRect units = covering(part.translated(-whole.topLeft()), ratio);
        QImage shot = screen->grabWindow(0, units.x(), units.y(), units.width(), units.height())
                          .toImage()
                          .convertToFormat(QImage::Format_RGB32);
        shot.setDevicePixelRatio(1);
        const QPoint at = whole.topLeft() + units.topLeft() * ratio - pixels.topLeft();
        seen.PaintPicture(shot, at.x(), at.y());
        anything = anything || !shot.isNull();
    }
    return anything ? seen.Image() : QImage();
}

} // namespace kaart
