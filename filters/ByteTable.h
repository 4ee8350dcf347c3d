#pragma once

#include "design/surface/Numbers.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kaart {

/// What becomes of a channel, by its value.
using ByteTable = std::array<std::uint8_t, 256>;

/// The table of `value(i)` for i from 0 to 255, rounded half to even and held within 0 to 255.
template <typename Value>
ByteTable tableOf(const Value& value) {
    ByteTable table{};
    for (int i = 0; i < 256; ++i) {
        table[static_cast<std::size_t>(i)] =
            static_cast<std::uint8_t>(std::clamp(roundEven(value(i)), 0, 255));
    }
    return table;
}

} // namespace kaart
