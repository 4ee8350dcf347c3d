#pragma once

#include "design/surface/PixelSpan.h"

#include <cstdint>

namespace kaart {

void literalNegative(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalGrayscale(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalLight(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalSaturation(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalSwap(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalContrast(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalSepia(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalDodge(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);
void literalModern(PixelSpan PixelBuf, ConstPixelSpan SourceBuf, std::int32_t parameter);

} // namespace kaart
