#pragma once

#include <QColor>

class QBrush;
class QPainter;
class QRect;
class QWidget;

namespace kaart {

// The few shades that the program's own controls have in common, so that they look like one set on
// a window of any colour.

/// A colour on the way from one to the other: `share` 0 is `from`, 1 is `to`. The result is opaque.
QColor mixed(const QColor& from, const QColor& to, double share);

/// The warm colour of hover and of what is switched on.
inline QColor warmAccent() {
    return {232, 130, 36};
}

/// A frame of so many whole pixels along the inside of a box, at any magnification of the screen.
void fillFrame(QPainter& painter, const QRect& box, int width, const QBrush& ink);

/// Whether a widget is to show that the keyboard acts on it: it has the focus and the user moved
/// the focus with the keyboard since the window opened.
bool showsFocusRing(const QWidget& widget);

} // namespace kaart
