// What a slider step of the wave text window costs.
#include "bench/BenchApplication.h"
#include "generators/CurvedText.h"

#include <benchmark/benchmark.h>

using namespace kaart;

namespace {

/// Sixty glyphs along a circle, at a size of `range(0)` points.
void curvedText(benchmark::State& state) {
    benchApplication();
    PixelSurface surface(685, 340);
    surface.FontSize = static_cast<double>(state.range(0));
    const QString text =
        QStringLiteral("Hartelijk gefeliciteerd met jullie nieuwe huis, veel plezier");
    int turn = 0;
    for (auto _ : state) {
        CircleText(surface, 342, 150, 150, ++turn % 180 + 1, 360, text);
    }
}

} // namespace

BENCHMARK(curvedText)->Name("curved_text")->Arg(22)->Arg(150)->Unit(benchmark::kMillisecond);
