#include "design/surface/Random.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace kaart {

namespace {

using Generator =
    std::linear_congruential_engine<std::uint64_t, 6364136223846793005U, 1442695040888963407U, 0>;

constexpr std::uint64_t firstSeed = 2015;
constexpr int unusedBits = 64 - 24;
constexpr float unit = 1.0F / (1 << 24);

Generator generator(firstSeed);

} // namespace

float Rnd() {
    return static_cast<float>(generator() >> unusedBits) * unit;
}

void fillRnd(std::span<float> numbers) {
    std::generate(numbers.begin(), numbers.end(), Rnd);
}

void Randomize() {
    seedRnd(
        static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

void seedRnd(std::uint64_t seed) {
    generator.seed(seed);
}

} // namespace kaart
