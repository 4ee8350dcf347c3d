#pragma once

#include "output/PageLayout.h"

namespace kaart {

/// A sheet with the year as its heading, the picture, and twelve month blocks of weeks from Sunday
/// to Saturday; it stands across the design. No dates are computed: a table of the years 2008 to
/// 2020 tells where January begins and how long February is, and from there the weekday runs on
/// from month to month. Another year is printed with a February of 28 days; its first copy begins
/// on a Sunday, each further one where the December before it left off. Margins play no part.
bool printCalendar(PrinterObject& printer, const PrintOrder& order);

/// The same of a lying design (an upright sheet) and of an upright one (a lying sheet), whatever
/// the order says of the design.
bool PrintJaarkalenderLiggend(PrinterObject& printer, const PrintOrder& order);
bool PrintJaarkalenderStaand(PrinterObject& printer, const PrintOrder& order);

} // namespace kaart
