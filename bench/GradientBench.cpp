// The colour runs: worked out per row, column, diagonal and ring, beside the bands that they equal.
#include "filters/Gradient.h"
#include "tests/support/LiteralGradient.h"

#include <benchmark/benchmark.h>

using namespace kaart;

namespace {

constexpr QSize card(440, 640);
constexpr QSize photo(6000, 4000); // 24 megapixels
constexpr int top = 0;
constexpr int left = 1;
constexpr int diagonal = 4;
constexpr int steps = 255;
constexpr ColorRef from = RGB(60, 60, 60);
constexpr ColorRef to = RGB(200, 250, 0);

void linear(benchmark::State& state, QSize size, int direction) {
    PixelSurface surface(size.width(), size.height());
    for (auto _ : state) {
        GradientFillPicture(surface, from, direction, to);
    }
}

void linearPlain(benchmark::State& state, int direction) {
    PixelSurface surface(card.width(), card.height());
    for (auto _ : state) {
        literalGradient(surface, from, direction, to);
    }
}

void circle(benchmark::State& state, QSize size) {
    PixelSurface surface(size.width(), size.height());
    for (auto _ : state) {
        GradientCircle(surface, from, to, steps, -1, -1);
    }
}

void circlePlain(benchmark::State& state) {
    PixelSurface surface(card.width(), card.height());
    for (auto _ : state) {
        literalCircle(surface, from, to, steps, -1, -1);
    }
}

} // namespace

BENCHMARK_CAPTURE(linear, top, card, top)->Name("grad_top/ours/card/t1");
BENCHMARK_CAPTURE(linearPlain, top, top)->Name("grad_top/plain/card/t1");
BENCHMARK_CAPTURE(linear, top24, photo, top)->Name("grad_top/ours/24MP/t1");
BENCHMARK_CAPTURE(linear, left, card, left)->Name("grad_left/ours/card/t1");
BENCHMARK_CAPTURE(linearPlain, left, left)->Name("grad_left/plain/card/t1");
BENCHMARK_CAPTURE(linear, left24, photo, left)->Name("grad_left/ours/24MP/t1");
BENCHMARK_CAPTURE(linear, diag, card, diagonal)->Name("grad_diag/ours/card/t1");
BENCHMARK_CAPTURE(linearPlain, diag, diagonal)->Name("grad_diag/plain/card/t1");
BENCHMARK_CAPTURE(linear, diag24, photo, diagonal)->Name("grad_diag/ours/24MP/t1");
BENCHMARK_CAPTURE(circle, card, card)->Name("grad_circle/ours/card/t1");
BENCHMARK(circlePlain)->Name("grad_circle/plain/card/t1");
BENCHMARK_CAPTURE(circle, photo, photo)->Name("grad_circle/ours/24MP/t1");
