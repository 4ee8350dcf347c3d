#include "controls/Shades.h"

#include <QPainter>
#include <QWidget>

namespace kaart {

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto between = [share](double a, double b) {
        return static_cast<float>(a + (b - a) * share);
    };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

void fillFrame(QPainter& painter, const QRect& box, int width, const QBrush& ink) {
    painter.fillRect(QRect(box.left(), box.top(), box.width(), width), ink);
    painter.fillRect(QRect(box.left(), box.bottom() + 1 - width, box.width(), width), ink);
    painter.fillRect(QRect(box.left(), box.top(), width, box.height()), ink);
    painter.fillRect(QRect(box.right() + 1 - width, box.top(), width, box.height()), ink);
}

bool showsFocusRing(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace kaart
