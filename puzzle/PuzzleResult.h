#pragma once

#include <QString>

namespace kaart {

/// What the puzzle panel, the puzzle window and the score list tell one another. Lives as long as
/// the program.
struct PuzzleResult {
    int PuzzleCols = 3;  ///< pieces across
    int PuzzleRows = 3;  ///< pieces down
    int PuzzleLevel = 1; ///< 0 "G", 1 "S", 2 "M"
    int LastTurns = 0;   ///< as last reported
    int LastScore = 0;   ///< as last reported
    QString ScoreName;   ///< not empty while a game waits for its row in the score list
    QString ScoreGrid;   ///< the row's grid and level
    QString ScoreTime;   ///< "hh:mm:ss"
};

} // namespace kaart
