#pragma once

#include "output/PageLayout.h"

namespace kaart {

/// The picture over a whole A4 sheet that follows the design's orientation. Kept: left and top
/// margins shift the picture without making it smaller, right and bottom margins make it smaller
/// without regard to the shift, for the margins nudge a print into place.
bool printA4(PrinterObject& printer, const PrintOrder& order);

} // namespace kaart
