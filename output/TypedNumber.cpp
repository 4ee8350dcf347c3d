#include "output/TypedNumber.h"

#include "design/surface/Numbers.h"
#include "design/surface/ParseNumber.h"

namespace kaart {

double typedNumber(const QString& text) {
    return parseNumber(text).value_or(0);
}

int typedWholeNumber(const QString& text) {
    return roundEven(typedNumber(text));
}

} // namespace kaart
