// One tick of the magnifier on a real screen, with what it paints: the whole cost every 25 ms.
#include "bench/BenchApplication.h"
#include "controls/ControlTable.h"
#include "design/window/Magnifier.h"
#include "design/window/PanelTable.h"

#include <benchmark/benchmark.h>

using namespace kaart;

namespace {

void tick(benchmark::State& state) {
    benchApplication();
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        state.SkipWithError("needs a screen: xvfb-run build/release/bin/kaart_bench");
        return;
    }
    QWidget window;
    buildControls(window, panelTable());
    Design design({});
    auto* magnifier = new Magnifier(window, design);
    window.show();
    QCoreApplication::processEvents();
    control<Fader>(window, "LoepScroll").setValue(static_cast<int>(state.range(0)));
    control<QTimer>(window, "LoepTimer").stop(); // ticks come from here only
    for (auto _ : state) {
        magnifier->tick();
        QCoreApplication::processEvents();
    }
}

} // namespace

BENCHMARK(tick)->Name("magnifier_tick")->Arg(1)->Arg(4)->Arg(10)->Unit(benchmark::kMillisecond);
