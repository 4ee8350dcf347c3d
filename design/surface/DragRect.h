#pragma once

#include <QRect>

#include <algorithm>

namespace kaart {

/// The rectangle of a drag, in pixels, both points included. It grows right and down only: a point
/// before the start counts as the start in that direction.
inline QRect dragRect(QPoint start, QPoint mouse) {
    return {start, QPoint(std::max(start.x(), mouse.x()), std::max(start.y(), mouse.y()))};
}

} // namespace kaart
