#pragma once

#include "addresses/AddressList.h"

#include <QDateTime>

namespace kaart {

class PrinterObject;

/// Prints the addresses as a table on lying sheets, 40 rows each: title and stamp (`now`) on the
/// first, the heading on every one. Cells are neither wrapped nor cut. Kept: rows start 60 twips
/// higher from the second sheet on, and after a full last sheet one with only the heading follows.
/// Without addresses nothing is printed. False when the job didn't come out.
bool PrintAdressen(PrinterObject& printer, const Addresses& addresses, const QDateTime& now);

} // namespace kaart
