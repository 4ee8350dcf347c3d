// The doubling of a portrait design: the kernel against the loop that it stands for.
#include "output/OptimisePicture.h"
#include "tests/support/LiteralOptimise.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace {

using namespace kaart;

constexpr int designWidth = 440;
constexpr int designHeight = 640;

PixelSurface noisyDesign() {
    PixelSurface design(designWidth, designHeight);
    std::uint32_t noise = 1;
    const PixelSpan pixels = design.writePixels();
    for (int i = 0; i < designWidth * designHeight; ++i) {
        noise = noise * 1664525U + 1013904223U;
        pixels.data[i] = noise | 0xFF000000U;
    }
    return design;
}

void OptimiseLiteral(benchmark::State& state) {
    const PixelSurface design = noisyDesign();
    PixelSurface doubled(2 * designWidth, 2 * designHeight);
    for (auto _ : state) {
        literalOptimise(design, doubled);
    }
}

void OptimiseKernel(benchmark::State& state) {
    const PixelSurface design = noisyDesign();
    PixelSurface doubled(2 * designWidth, 2 * designHeight);
    SilentRhythm silent;
    for (auto _ : state) {
        OptimisePicture(design.pixels(), doubled.writePixels(), silent);
    }
}

BENCHMARK(OptimiseLiteral)->Unit(benchmark::kMillisecond);
BENCHMARK(OptimiseKernel)->Unit(benchmark::kMillisecond);

} // namespace
