#include "design/surface/Random.h"

#include <array>
#include <chrono>
#include <cstddef>

namespace kaart {

namespace {

/// One step of the generator, or several at once: from a state to a later one.
struct Step {
    std::uint64_t factor;
    std::uint64_t summand;

    constexpr std::uint64_t operator()(std::uint64_t from) const { return from * factor + summand; }
    constexpr Step twice() const { return {factor * factor, factor * summand + summand}; }
};

constexpr Step one{6364136223846793005U, 1442695040888963407U};
constexpr std::uint64_t firstSeed = 2015;

std::uint64_t state = firstSeed;

std::int32_t topBits(std::uint64_t drawn) {
    return static_cast<std::int32_t>(drawn >> 40);
}

float numberOf(std::int32_t bits) {
    constexpr float unit = 1.0F / (1 << 24);
    return static_cast<float>(bits) * unit;
}

} // namespace

float Rnd() {
    state = one(state);
    return numberOf(topBits(state));
}

void fillRnd(std::span<float> numbers) {
    // Eight states in a row, each of which leaps over the others: they need not wait for each
    // other.
    constexpr std::size_t leapers = 8;
    constexpr Step leap = one.twice().twice().twice();
    std::array<std::uint64_t, leapers> states;
    std::uint64_t next = state;
    for (std::uint64_t& each : states) {
        each = next = one(next);
    }
    std::array<std::int32_t, 4 * leapers> bits; // turned into numbers many at a time
    std::size_t i = 0;
    for (; i + bits.size() <= numbers.size(); i += bits.size()) {
        for (std::size_t j = 0; j < bits.size(); j += leapers) {
            state = states.back();
            for (std::size_t k = 0; k < leapers; ++k) {
                bits[j + k] = topBits(states[k]);
                states[k] = leap(states[k]);
            }
        }
        for (std::size_t j = 0; j < bits.size(); ++j) {
            numbers[i + j] = numberOf(bits[j]);
        }
    }
    for (; i < numbers.size(); ++i) {
        numbers[i] = Rnd();
    }
}

void Randomize() {
    seedRnd(
        static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

void seedRnd(std::uint64_t seed) {
    state = seed;
}

} // namespace kaart
