#pragma once

#include "output/PageLayout.h"

namespace kaart {

/// A card of one sheet folded once: the picture on the front half and a light grey box with a black
/// outline on the other; both touch at the fold. The sheet stands across the design: an upright
/// design takes a landscape sheet. Margins play no part.
bool printFoldedCard(PrinterObject& printer, const PrintOrder& order);

} // namespace kaart
