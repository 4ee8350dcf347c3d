// The two lists in far greater numbers than anyone will have: nothing to be waited for.
#include "addresses/window/AdresForm.h"
#include "bench/BenchApplication.h"
#include "design/session/Design.h"
#include "puzzle/PuzzleResult.h"
#include "puzzle/window/ScoreForm.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <QTreeView>

#include <random>

namespace {

using namespace kaart;

constexpr int scoreCount = 100'000;
constexpr int addressCount = 32'000;

SortableList manyScores() {
    std::mt19937 random(1);
    SortableList list;
    list.ColumnCount = scoreColumns;
    for (int i = 0; i < scoreCount; ++i) {
        const auto number = static_cast<int>(random() % 5000);
        list.Rows << QStringList{QStringLiteral("Speler %1").arg(number),
                                 QStringLiteral("4 x 3            S"), QStringLiteral("00:01:09"),
                                 QString::number(number / 7), QString::number(number)};
    }
    return list;
}

/// A folder with both lists in it.
const QString& listFolder() {
    static const QTemporaryDir folder;
    static const QString path = [] {
        SavePuzzel(manyScores(), folder.filePath(QStringLiteral("Data/Scorelijst.col")));
        const QStringList address{QStringLiteral("Jan de Vries"), QStringLiteral("Dorpsstraat 1"),
                                  QStringLiteral("1234 AB"),      QStringLiteral("Ons Dorp"),
                                  QStringLiteral("012-3456789"),  QStringLiteral("-"),
                                  QStringLiteral("Nederland"),    QStringLiteral("-")};
        writeAddresses(folder.filePath(QStringLiteral("Data/Adressen.col")),
                       Addresses(addressCount, address));
        return folder.path();
    }();
    return path;
}

void loadScores(benchmark::State& state) {
    const QString path = listFolder() + QStringLiteral("/Data/Scorelijst.col");
    for (auto _ : state) {
        benchmark::DoNotOptimize(LoadPuzzel(path));
    }
}

void saveScores(benchmark::State& state) {
    const SortableList list = manyScores();
    for (auto _ : state) {
        SavePuzzel(list, listFolder() + QStringLiteral("/nieuw.col"));
    }
}

void sortScoresBy(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        SortableList list = manyScores();
        QString message;
        state.ResumeTiming();
        sortScores(list, static_cast<int>(state.range(0)), 0, message);
    }
}

/// Opens a window and waits for its first picture.
template <typename Form, typename... More>
void openWindow(benchmark::State& state, More&... more) {
    benchApplication();
    Design design(ProgramFolders{listFolder(), listFolder()});
    for (auto _ : state) {
        Form form(design, more...);
        form.show();
        form.grab();
    }
}

void openScoreForm(benchmark::State& state) {
    PuzzleResult result;
    openWindow<ScoreForm>(state, result);
}

BENCHMARK(loadScores)->Name("scores_100000/load")->Unit(benchmark::kMillisecond);
BENCHMARK(saveScores)->Name("scores_100000/save")->Unit(benchmark::kMillisecond);
BENCHMARK(sortScoresBy)
    ->Name("scores_100000/sort_column")
    ->Arg(1)
    ->Arg(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(openScoreForm)->Name("scores_100000/window")->Unit(benchmark::kMillisecond);
BENCHMARK(openWindow<AdresForm>)->Name("addresses_32000/window")->Unit(benchmark::kMillisecond);

} // namespace
