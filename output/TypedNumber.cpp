#include "output/TypedNumber.h"

#include "design/surface/Numbers.h"

#include <cmath>

namespace kaart {

double typedNumber(const QString& text) {
    QString plain = text.trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    const double number = plain.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0;
}

int typedWholeNumber(const QString& text) {
    return roundEven(typedNumber(text));
}

} // namespace kaart
