#pragma once

#include "output/PageLayout.h"

namespace kaart {

/// The picture four times, two by two, on a sheet that follows the design's orientation, to be cut
/// into postcards. Kept: the right and lower edges are wider than the left and upper ones. Margins
/// play no part.
bool printPostcards(PrinterObject& printer, const PrintOrder& order);

} // namespace kaart
