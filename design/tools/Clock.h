#pragma once

#include <QDateTime>
#include <QString>

namespace kaart {

/// "5 Maart 2026 / 9:05:07". The first two months are spelled as the program always has.
QString clockText(const QDateTime& now);

} // namespace kaart
