#pragma once

#include "design/surface/PixelSpan.h"

#include <cstdint>

// The block, dither, paint and random filters word for word: oracle and yardstick of the kernels.

namespace kaart {

void literalPixelize(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalDither(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalAquarel(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalDefuse(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalNoise(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);

} // namespace kaart
