#include "design/surface/ParseNumber.h"

#include <cmath>

namespace kaart {

std::optional<double> parseNumber(const QString& text) {
    QString plain = text.trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    const double number = plain.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace kaart
