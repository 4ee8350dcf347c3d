#pragma once

#include <QStringList>

namespace kaart {

// What combo boxes have on offer.

/// The numbers from `first` to `last`, both included.
QStringList numberList(int first, int last, int step = 1);

/// The system's fonts in its order; "Arial" is always offered, since another font stands in for it.
QStringList fontList();

} // namespace kaart
