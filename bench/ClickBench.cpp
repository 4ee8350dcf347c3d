// A whole click on an entry of the filters' menus: undo copy, filter, message loop and bar, in the
// real window.
#include "app/Windows.h"
#include "bench/BenchApplication.h"
#include "controls/ControlTable.h"
#include "design/window/Main.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QTemporaryDir>

using namespace kaart;

namespace {

void click(benchmark::State& state, const char* name, int index) {
    benchApplication();
    const QTemporaryDir folder;
    Design design({folder.path(), folder.path()});
    Main window(design, windowTable());
    window.show();
    QApplication::processEvents();
    auto& entry = control<QAction>(window, name, index);
    for (auto _ : state) {
        entry.trigger();
        QApplication::processEvents();
    }
}

} // namespace

BENCHMARK_CAPTURE(click, erode, "Filter", 22)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(click, negative, "Filter", 5)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(click, sepia, "Filter", 20)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(click, copy_left, "Flip", 3)->Unit(benchmark::kMillisecond);
