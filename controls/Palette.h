#pragma once

#include "design/surface/ColorRef.h"

#include <QColor>

class QWidget;

namespace kaart {

inline QColor toQColor(ColorRef colour) {
    return QColor(redOf(colour), greenOf(colour), blueOf(colour));
}

/// Gives a widget the back colour, and the text colour if one is named, of the program's design.
void setBackColor(QWidget& widget, ColorRef back);
void setForeColor(QWidget& widget, ColorRef fore);

/// The back colour of the main window and of most others.
inline constexpr ColorRef windowColor = RGB(230, 230, 190);

/// The program's common look: fixed fonts in pixels, since windows are laid out in pixels, a
/// warm palette, and a ring round what the keyboard acts on. To be called once on the application,
/// before the first window.
void applyHouseStyle();

} // namespace kaart
