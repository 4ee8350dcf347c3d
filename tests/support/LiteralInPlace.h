#pragma once

#include "design/surface/PixelSpan.h"

#include <cstdint>

// The in-place filters word for word: oracle and yardstick of the kernels.

namespace kaart {

void literalSharpen(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalEdge(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalBlur(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalSmooth(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);

} // namespace kaart
