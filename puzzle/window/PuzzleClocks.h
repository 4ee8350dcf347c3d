#pragma once

#include "puzzle/PuzzleGame.h"

#include <QTimer>

#include <array>
#include <functional>

namespace kaart {

using GameTick = void (*)(PuzzleGame& game);

/// The timers of a game on screen: tmrShuffle, tmrScore, tmrShowFullPic and tmrShowCorrect, which
/// belong to the parent.
class PuzzleClocks {
public:
    /// `run` is called with the tick of each timer that has gone off.
    PuzzleClocks(QObject* parent, const std::function<void(GameTick)>& run);

    /// Has the timers run as the game wants them now, or stops them all.
    void follow(const PuzzleGame& game, bool running);

private:
    std::array<QTimer*, 4> timers_;
};

} // namespace kaart
