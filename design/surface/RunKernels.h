#pragma once

#include "design/surface/ColorRef.h"

#include <cstddef>

namespace kaart {

// Runs of pixels, with the widest vectors that the processor has.

/// How many of the first `count` pixels have another value, up to the first that has it.
std::size_t differentRun(const Pixel* pixels, std::size_t count, Pixel value);
/// Replaces the leading run of exactly this value and answers its length.
std::size_t replaceRun(Pixel* pixels, std::size_t count, Pixel value, Pixel by);
void fillRun(Pixel* pixels, std::size_t count, Pixel value);
/// Copies a run in reverse order; the two must not overlap.
void reverseRun(Pixel* to, const Pixel* from, std::size_t count);
/// Copies a short run, such as a row; the two must not overlap.
void copyRun(Pixel* to, const Pixel* from, std::size_t count);

} // namespace kaart
