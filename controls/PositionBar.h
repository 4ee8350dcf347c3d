#pragma once

#include <QScrollBar>

namespace kaart {

/// Makes a scroll bar of a control table one that moves through something: upright if asked for,
/// from `minimum`, where it stands, to `maximum`. Keys and wheel go the way that the content goes.
void makePositionBar(QScrollBar& bar, Qt::Orientation orientation, int minimum, int maximum);

} // namespace kaart
