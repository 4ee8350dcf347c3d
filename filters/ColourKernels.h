#pragma once

#include "design/surface/ColorRef.h"
#include "filters/ByteTable.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kaart {

// Runs of pixels, each made from the pixel at the same place, with the widest vectors that the
// processor has. `to` may be `from`. The fourth byte of every pixel is carried over.

void negativeRun(Pixel* to, const Pixel* from, std::size_t count);
/// Each channel becomes (blue + green + red) \ 3.
void grayRun(Pixel* to, const Pixel* from, std::size_t count);
/// Each channel is doubled, at most 255.
void doubleRun(Pixel* to, const Pixel* from, std::size_t count);
/// Red r stays, green becomes |g - 40|, 0 if above r, and blue |b - 80|, 0 if above the new green.
void sepiaRun(Pixel* to, const Pixel* from, std::size_t count);
/// Byte n of a pixel becomes its byte `pattern >> 8 n & 3`.
void shuffleRun(Pixel* to, const Pixel* from, std::size_t count, Pixel pattern);
/// Each channel c becomes c + scaled(c, factor), or with `darker` c - scaled(c, factor), held
/// within 0 to 255; scaled(c, f) = (c * f + 2^14) >> 15, f from 0 to 32767.
void scaleRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t factor, bool darker);
/// Each channel c becomes c + scaled(2 (c - m), factor), held within 0 to 255, with the pixel's
/// mean m = (blue + green + red) \ 3.
void saturateRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t factor);
/// Each of the three channels is looked up by itself.
void tableRun(Pixel* to, const Pixel* from, std::size_t count, const ByteTable& table);
/// Each of the three channels is looked up by itself. While one of a pixel's three values is
/// outside 0 to 255: all become 0 if none is above 0, 255 if none is below 255; otherwise blue,
/// green and red in turn are cut off, and give half of what is cut (truncated) to the other two.
void spreadRun(Pixel* to, const Pixel* from, std::size_t count,
               const std::array<std::int16_t, 256>& table);
/// The same from the values c + scaled(c - mean, factor), the factor of either sign.
void stretchRun(Pixel* to, const Pixel* from, std::size_t count, std::int16_t mean,
                std::int16_t factor);
/// ~above | from, the fourth byte 255.
void mergeRun(Pixel* to, const Pixel* from, const Pixel* above, std::size_t count);
/// The sum of (blue + green + red) \ 3 over the pixels.
std::uint64_t sumOfGrays(const Pixel* pixels, std::size_t count);

} // namespace kaart
