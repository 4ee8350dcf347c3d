#pragma once

#include "puzzle/PuzzlePart.h"

#include <functional>
#include <utility>
#include <vector>

namespace kaart {

/// What a game tells its host, each at the moment when it happens. None may be empty.
struct PuzzleEvents {
    std::function<void(int Turns)> Counter = [](int) {};
    /// The size in twips that the finished puzzle needs.
    std::function<void(int width, int height)> Resize = [](int, int) {};
    std::function<void(int Score, int seconds)> Score = [](int, int) {};
    std::function<void()> Finished = [] {};
    /// A swap of the shuffle has happened or the preview is painted: the moment to show it.
    std::function<void()> letOthersRun = [] {};
};

/// A timer as the game wants it now. Whoever runs the game calls its tick every Interval
/// milliseconds while it is enabled.
struct PuzzleTimer {
    int Interval;
    bool Enabled = false;
};

struct PuzzleState {
    bool Playing = false; ///< from the end of the shuffle until the puzzle is whole
    int Turns = 0;
    int LastTarget = 0; ///< the pieces of the last swap
    int LastSource = 0;
    int Score = 0;             ///< may be below 0 between two ticks of the clock
    bool SolveByClick = false; ///< the next press on a misplaced piece repairs it
    int ShuffleStep = 0;       ///< ticks of tmrShuffle so far
    int ShufflePartCount = 0;
    int Seconds = 0; ///< ticks of tmrScore so far
};

/// A puzzle of swaps: cuts a picture into equal pieces, shuffles them, and keeps turns, clock and
/// score until the picture is whole again. One object is one game: Start is called once. On easy
/// the left column and the bottom row are locked. Numbers of pieces that don't exist are ignored.
class PuzzleGame {
public:
    explicit PuzzleGame(PuzzleEvents events = {}) : events_(std::move(events)) {
        picShow_.Visible = false;
    }

    int Level = 0; ///< 0 easy, 1 standard, 2 hard
    int RowCount = 0;
    int ColCount = 0;

    void mainPicture(const QImage& picture);
    /// Builds the pieces for a room of so many twips and has the shuffle begin. False when they
    /// could not be built; the shuffle begins all the same.
    bool Start(int MaxWidth, int MaxHeight, bool ShowBorders);
    void CheckBorder(bool borders);
    /// Swaps the pieces of the last swap again; it counts as a turn.
    void Undo();
    /// True brings one piece home that is drawn by lot, false has the next press repair a piece.
    /// Does nothing on a whole picture.
    void Solve(bool Automatic);
    /// Shows the whole picture until its timer ends.
    void showFullPic();
    /// Shows only the pieces that stand right, or only the others, until the timer ends.
    void showParts(bool ShowCorrect);
    void UnloadAllObjects() { parts_.clear(); }

    /// A piece is dropped on another: the two change places.
    void drop(int target, int source);
    bool canSwap(int target, int source) const;
    /// The mouse goes down on a piece.
    void press(int piece);

    void tickShuffle();
    void tickScore();
    void tickShowFullPic();
    void tickShowCorrect();

    const std::vector<PuzzlePart>& Parts() const { return parts_; }
    const PuzzleState& state() const { return state_; }
    bool isWhole() const;
    const PuzzleTimer& tmrShuffle() const { return tmrShuffle_; }
    const PuzzleTimer& tmrScore() const { return tmrScore_; }
    const PuzzleTimer& tmrShowFullPic() const { return tmrShowFullPic_; }
    const PuzzleTimer& tmrShowCorrect() const { return tmrShowCorrect_; }
    const PixelSurface& picSource() const { return picSource_; }
    const PixelSurface& picSmall() const { return picSmall_; } ///< a small preview
    const PixelSurface& picShow() const { return picShow_; }   ///< over the pieces while Visible

private:
    PuzzlePart* part(int k);
    bool exists(int k) const { return k >= 1 && k <= static_cast<int>(parts_.size()); }
    bool isLocked(int k) const;
    void paintPreview();
    int draw();
    void countMove();
    void charge(int amount) { state_.Score -= (Level + 1) * amount; }

    PuzzleEvents events_;
    PuzzleState state_;
    std::vector<PuzzlePart> parts_;
    PuzzleTimer tmrShuffle_{3000};
    PuzzleTimer tmrScore_{1000};
    PuzzleTimer tmrShowFullPic_{5000};
    PuzzleTimer tmrShowCorrect_{5000};
    PixelSurface picSource_;
    PixelSurface picSmall_;
    PixelSurface picShow_;
};

} // namespace kaart
