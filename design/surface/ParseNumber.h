#pragma once

#include <QString>

#include <optional>

namespace kaart {

/// A number as the user writes it, with a comma or a point before the decimals, white space around
/// it allowed. Nothing for a text that isn't a number from end to end or isn't finite.
std::optional<double> parseNumber(const QString& text);

} // namespace kaart
