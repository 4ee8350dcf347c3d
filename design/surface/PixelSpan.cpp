#include "design/surface/PixelSpan.h"

#include <QPainter>

namespace kaart {

QImage toSurfaceFormat(const QImage& picture) {
    if (picture.isNull() || picture.format() == QImage::Format_RGB32) {
        return picture;
    }
    if (!picture.hasAlphaChannel()) {
        return picture.convertToFormat(QImage::Format_RGB32);
    }
    QImage onWhite(picture.size(), QImage::Format_RGB32);
    onWhite.fill(Qt::white);
    QPainter painter(&onWhite);
    // A picture for a denser screen still counts pixel for pixel.
    painter.drawImage(onWhite.rect(), picture, picture.rect());
    return onWhite;
}

ConstPixelSpan spanOf(const QImage& picture) {
    return {reinterpret_cast<const Pixel*>(picture.constBits()), picture.width(), picture.height()};
}

PixelSpan spanOf(QImage& picture) {
    return {reinterpret_cast<Pixel*>(picture.bits()), picture.width(), picture.height()};
}

} // namespace kaart
