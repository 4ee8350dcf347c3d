#include "pictures/CaptureCut.h"

#include "design/surface/DragRect.h"

namespace kaart {

QRect captureBand(const QPoint& start, const QPoint& mouse, const QSize& picture) {
    return dragRect(start, mouse) & QRect(QPoint(), picture);
}

QImage captureCut(const QImage& screen, const QRect& band) {
    return screen.copy(band & screen.rect());
}

} // namespace kaart
