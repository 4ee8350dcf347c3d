#pragma once

#include "design/surface/PixelSpan.h"

#include <cstdint>
#include <span>

// Every filter and pass word for word, one loop over the pixels: oracle and yardstick of the
// kernels.

namespace kaart {

/// PixelBuf is a copy of SourceBuf, as at the start of a run.
using LiteralRoutine = void(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);

struct LiteralFilter {
    const char* op;
    LiteralRoutine* run;
};

std::span<const LiteralFilter> literalFilters();
/// nullptr when there is none of that name.
const LiteralFilter* findLiteral(const char* op);

// Those of one pixel, and the block, dither, paint and random ones, in sources of their own.
LiteralRoutine literalNegative, literalGrayscale, literalLight, literalSaturation, literalSwap,
    literalContrast, literalSepia, literalDodge, literalModern;
LiteralRoutine literalPixelize, literalDither, literalAquarel, literalDefuse, literalNoise;

} // namespace kaart
