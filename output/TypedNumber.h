#pragma once

#include <QString>

namespace kaart {

/// A number as the user types it, with a comma or a point before the decimals. A text that isn't a
/// number from end to end, an empty one and one that isn't finite count as 0.
double typedNumber(const QString& text);

/// The same as a whole number, a half going to the even neighbour.
int typedWholeNumber(const QString& text);

} // namespace kaart
