#pragma once

#include <cstdint>
#include <span>

namespace kaart {

/// The next number of the one generator that the whole program shares: uniform in [0, 1), a
/// multiple of 2^-24. The sequence starts the same in every process until Randomize is called.
/// (64-bit linear congruential generator, D. E. Knuth, MMIX; its top 24 bits are used.)
float Rnd();
/// The same as one Rnd for each place in turn.
void fillRnd(std::span<float> numbers);

/// Starts the sequence anew from the clock.
void Randomize();
/// Starts the sequence anew from a number.
void seedRnd(std::uint64_t seed);

} // namespace kaart
