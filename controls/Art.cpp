#include "controls/Art.h"

#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace kaart {

namespace {

constexpr int zoom = 5;

/// The colour that occurs most often in a square of zoom x zoom pixels.
QRgb commonest(const QImage& picture, QPoint topLeft) {
    std::array<QRgb, std::size_t{zoom} * zoom> colours{};
    for (int i = 0; i < zoom * zoom; ++i) {
        colours[static_cast<std::size_t>(i)] = picture.pixel(topLeft + QPoint(i % zoom, i / zoom));
    }
    QRgb winner = 0;
    std::ptrdiff_t most = 0;
    // As soon as one has more than half of the square no other one can have more.
    for (std::size_t i = 0; i < colours.size() && most <= zoom * zoom / 2; ++i) {
        const auto count = std::count(colours.begin(), colours.end(), colours[i]);
        if (count > most) {
            most = count;
            winner = colours[i];
        }
    }
    return winner;
}

} // namespace

QImage renderArt(const QString& name, const QSize& pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer drawing(QStringLiteral(":/art/%1.svg").arg(name));
    if (drawing.isValid() && !image.isNull()) {
        QPainter painter(&image);
        drawing.render(&painter);
    }
    return image;
}

QImage renderFlatArt(const QString& name, const QSize& pixels) {
    const QImage fine = renderArt(name, pixels * zoom);
    QImage flat(pixels, QImage::Format_ARGB32);
    for (int y = 0; y < flat.height(); ++y) {
        for (int x = 0; x < flat.width(); ++x) {
            flat.setPixel(x, y, commonest(fine, QPoint(x, y) * zoom));
        }
    }
    return flat;
}

void showArt(QLabel& label, const QString& name) {
    const double ratio = label.devicePixelRatioF();
    QImage art = renderArt(name, (QSizeF(label.size()) * ratio).toSize());
    art.setDevicePixelRatio(ratio);
    label.setPixmap(QPixmap::fromImage(art));
}

} // namespace kaart
