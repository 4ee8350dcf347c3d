// What a user feels: from a mouse move to the repainted canvas, and putting down a floating
// picture.
#include "app/Windows.h"
#include "bench/BenchApplication.h"
#include "controls/ControlTable.h"
#include "design/tools/FloatingPicture.h"
#include "design/window/Main.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <vector>

using namespace kaart;

namespace {

void send(QWidget& widget, QEvent::Type type, QPoint at) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &event);
    QApplication::processEvents();
}

/// Moves the mouse over a widget with the left button down, `next` giving each point.
template <typename Next>
void dragOver(benchmark::State& state, QWidget& widget, QPoint start, Next next) {
    std::vector<double> times;
    send(widget, QEvent::MouseButtonPress, start);
    int step = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        send(widget, QEvent::MouseMove, next(++step));
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    send(widget, QEvent::MouseButtonRelease, start);
    std::sort(times.begin(), times.end());
    state.counters["p99_ms"] = times[times.size() * 99 / 100];
}

struct Desk {
    Desk() {
        benchApplication();
        window.emplace(design, windowTable());
        window->show();
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    Design design{{folder.path(), folder.path()}};
    std::optional<Main> window;
};

void freeHand(benchmark::State& state) {
    Desk desk;
    desk.design.setTekenModus(0);
    dragOver(state, control<QWidget>(*desk.window, "Pic"), {20, 20},
             [](int i) { return QPoint(20 + i * 37 % 400, 20 + i * 53 % 600); });
}

void floatingPicture(benchmark::State& state) {
    Desk desk;
    QImage picture(400, 400, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    handOver(desk.design, picture, QString(), true);
    const QPoint hold(50, 50);
    dragOver(state, control<QWidget>(*desk.window, "ClipPic"), hold,
             [hold](int i) { return hold + (i % 40 < 20 ? QPoint(5, 7) : QPoint(-5, -7)); });
}

void withoutBackground(benchmark::State& state) {
    Desk desk;
    SilentRhythm silent;
    QImage picture(440, 640, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (auto _ : state) {
        handOver(desk.design, picture, QString(), true);
        Plak(desk.design, 5, silent);
        QApplication::processEvents();
    }
}

} // namespace

BENCHMARK(freeHand)->Name("drag_free_hand")->Unit(benchmark::kMillisecond)->Iterations(2000);
BENCHMARK(floatingPicture)->Name("drag_float_400")->Unit(benchmark::kMillisecond)->Iterations(2000);
BENCHMARK(withoutBackground)->Name("without_background/card")->Unit(benchmark::kMillisecond);
