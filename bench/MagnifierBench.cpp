// One tick of the magnifier on a real screen, with what it paints: the whole cost every 25 ms.
#include "controls/ControlTable.h"
#include "design/window/Magnifier.h"
#include "design/window/PanelTable.h"

#include <benchmark/benchmark.h>

#include <QApplication>

using namespace kaart;

namespace {

/// The platform's application, once, and only where the surroundings name a display.
bool haveScreen() {
    static int count = 1;
    static char name[] = "kaart_bench";
    static char* arguments[] = {name, nullptr};
    static const bool display = qEnvironmentVariableIsSet("DISPLAY");
    if (!display) {
        return false;
    }
    static const QApplication application(count, arguments);
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

void tick(benchmark::State& state) {
    if (!haveScreen()) {
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
