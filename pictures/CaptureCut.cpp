#include "pictures/CaptureCut.h"

#include <algorithm>

namespace kaart {

QRect captureBand(const QPoint& start, const QPoint& mouse, const QSize& picture) {
    const QPoint end(std::max(mouse.x(), start.x()), std::max(mouse.y(), start.y()));
    return QRect(start, end) & QRect(QPoint(), picture);
}

QImage captureCut(const QImage& screen, const QRect& band) {
    return screen.copy(band & screen.rect());
}

} // namespace kaart
