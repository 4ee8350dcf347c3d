#include "puzzle/window/PuzzleClocks.h"

namespace kaart {

namespace {

using Game = PuzzleGame;

constexpr std::array<const char*, 4> names = {"tmrShuffle", "tmrScore", "tmrShowFullPic",
                                              "tmrShowCorrect"};
constexpr std::array<GameTick, 4> ticks = {
    [](Game& game) { game.tickShuffle(); }, [](Game& game) { game.tickScore(); },
    [](Game& game) { game.tickShowFullPic(); }, [](Game& game) { game.tickShowCorrect(); }};

} // namespace

PuzzleClocks::PuzzleClocks(QObject* parent, const std::function<void(GameTick)>& run) {
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        timers_[i] = new QTimer(parent);
        timers_[i]->setObjectName(QString::fromUtf8(names[i]));
        QObject::connect(timers_[i], &QTimer::timeout, parent, [run, i] { run(ticks[i]); });
    }
}

void PuzzleClocks::follow(const PuzzleGame& game, bool running) {
    const std::array<PuzzleTimer, 4> wanted = {game.tmrShuffle(), game.tmrScore(),
                                               game.tmrShowFullPic(), game.tmrShowCorrect()};
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        QTimer& timer = *timers_[i];
        if (!wanted[i].Enabled || !running) {
            timer.stop();
        } else if (!timer.isActive() || timer.interval() != wanted[i].Interval) {
            timer.start(wanted[i].Interval);
        }
    }
}

} // namespace kaart
