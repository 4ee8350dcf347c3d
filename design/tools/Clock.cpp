#include "design/tools/Clock.h"

#include <array>

namespace kaart {

QString clockText(const QDateTime& now) {
    constexpr std::array months = {"Januarie",  "Februarie", "Maart",    "April",
                                   "Mei",       "Juni",      "Juli",     "Augustus",
                                   "September", "Oktober",   "November", "December"};
    const QDate date = now.date();
    return QStringLiteral("%1 %2 %3 / %4")
        .arg(date.day())
        .arg(QLatin1String(months.at(static_cast<std::size_t>(date.month() - 1))))
        .arg(date.year())
        .arg(now.time().toString(QStringLiteral("h:mm:ss")));
}

} // namespace kaart
