#pragma once

#include <QPoint>

#include <optional>

namespace kaart {

/// The way that an arrow key goes, one to a side, right and down positive; nothing for any other
/// key (Qt::Key).
inline std::optional<QPoint> arrowStep(int key) {
    switch (key) {
    case Qt::Key_Left:
        return QPoint(-1, 0);
    case Qt::Key_Right:
        return QPoint(1, 0);
    case Qt::Key_Up:
        return QPoint(0, -1);
    case Qt::Key_Down:
        return QPoint(0, 1);
    default:
        return std::nullopt;
    }
}

} // namespace kaart
