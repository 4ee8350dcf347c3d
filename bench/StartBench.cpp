// The start of the program against an empty Qt window of the same size: CPU time to the first paint
// and proportional memory, each start a process of its own.
#include <benchmark/benchmark.h>

#include <QByteArrayList>
#include <QProcess>

namespace {

void start(benchmark::State& state, const char* what) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    double memory = 0;
    for (auto _ : state) {
        QProcess probe;
        probe.setProcessEnvironment(environment);
        probe.start(QStringLiteral(START_PROBE), {QString::fromLatin1(what)});
        probe.waitForFinished();
        const QByteArrayList answer = probe.readAllStandardOutput().trimmed().split(' ');
        if (answer.size() != 2) {
            state.SkipWithError("the probe gave no answer");
            break;
        }
        state.SetIterationTime(answer[0].toDouble() / 1e6);
        memory = answer[1].toDouble();
    }
    state.counters["PSS_KiB"] = memory;
}

} // namespace

BENCHMARK_CAPTURE(start, ours, "main")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);
BENCHMARK_CAPTURE(start, empty_window, "empty")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);
