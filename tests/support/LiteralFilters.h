#pragma once

#include "design/surface/PixelSpan.h"

#include <cstdint>
#include <span>

// Every filter and pass word for word, one loop over the pixels: oracle and yardstick of the
// kernels.

namespace kaart {

/// PixelBuf is a copy of SourceBuf, as at the start of a run.
struct LiteralFilter {
    const char* op;
    void (*run)(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
};

std::span<const LiteralFilter> literalFilters();
/// nullptr when there is none of that name.
const LiteralFilter* findLiteral(const char* op);

void literalZwartWit(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t threshold);

} // namespace kaart
