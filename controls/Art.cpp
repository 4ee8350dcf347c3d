#include "controls/Art.h"

#include <QLabel>
#include <QPainter>
#include <QSvgRenderer>

namespace kaart {

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

void showArt(QLabel& label, const QString& name) {
    const double ratio = label.devicePixelRatioF();
    QImage art = renderArt(name, (QSizeF(label.size()) * ratio).toSize());
    art.setDevicePixelRatio(ratio);
    label.setPixmap(QPixmap::fromImage(art));
}

} // namespace kaart
