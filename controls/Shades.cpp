#include "controls/Shades.h"

#include <QWidget>

namespace kaart {

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto between = [share](double a, double b) {
        return static_cast<float>(a + (b - a) * share);
    };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

bool showsFocusRing(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace kaart
