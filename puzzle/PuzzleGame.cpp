#include "puzzle/PuzzleGame.h"

#include "design/surface/Numbers.h"
#include "design/surface/Random.h"

#include <algorithm>

namespace kaart {

namespace {

constexpr int movePrice = 10;
constexpr int solvePrice = 100;
constexpr int repairPrice = 250;
constexpr int fullPicPrice = 250;
constexpr int showPartsPrice = 125;
constexpr int hardLevel = 2;
constexpr int margin = 25;

void useTwips(PixelSurface& surface) {
    surface.ParentUnit = ScaleUnit::Twips;
    surface.ScaleMode = ScaleUnit::Twips;
}

} // namespace

void PuzzleGame::mainPicture(const QImage& picture) {
    useTwips(picSource_);
    picSource_.AutoSize = true;
    picSource_.setPicture(picture);
}

bool PuzzleGame::Start(int MaxWidth, int MaxHeight, bool ShowBorders) {
    Randomize();
    state_.Turns = 0;
    state_.Playing = false;
    const int base = Level == 0 ? (RowCount - 1) * (ColCount - 1) : RowCount * ColCount;
    state_.Score = base * 5 * Level + base * 100;
    const auto size = fitParts(picSource_, ColCount, RowCount, MaxWidth, MaxHeight);
    if (size) {
        events_.Resize(roundEven(static_cast<double>(size->PartWidth) * ColCount + margin),
                       roundEven(static_cast<double>(size->PartHeight) * RowCount + margin));
        paintPreview();
        events_.letOthersRun();
        for (int i = 1; i <= ColCount; ++i) {
            for (int j = 1; j <= RowCount; ++j) {
                parts_.push_back(makePart(picSource_, ColCount, RowCount, i, j, *size));
            }
        }
        CheckBorder(ShowBorders);
    }
    tmrShuffle_.Enabled = true;
    return size.has_value();
}

void PuzzleGame::paintPreview() {
    const double ratio = picSource_.Height() / picSource_.Width();
    // Kept: the two formulas are not one scale.
    const double width = ratio > 1 ? 500 / ratio : 600;
    const double height = ratio > 1 ? 700 : ratio * 1000;
    useTwips(picSmall_);
    picSmall_.setSize(width, height);
    picSmall_.PaintPicture(picSource_.Image(), 0, 0, width, height, 0, 0, picSource_.Width(),
                           picSource_.Height());
}

void PuzzleGame::CheckBorder(bool borders) {
    for (PuzzlePart& piece : parts_) {
        piece.BorderStyle = borders ? 1 : 0;
    }
}

PuzzlePart* PuzzleGame::part(int k) {
    return exists(k) ? &parts_[static_cast<std::size_t>(k - 1)] : nullptr;
}

bool PuzzleGame::isWhole() const {
    return !parts_.empty() &&
           std::all_of(parts_.begin(), parts_.end(),
                       [](const PuzzlePart& piece) { return piece.standsRight(); });
}

bool PuzzleGame::isLocked(int k) const {
    return Level == 0 && (k % RowCount == 0 || k <= RowCount);
}

bool PuzzleGame::canSwap(int target, int source) const {
    return target != source && exists(target) && exists(source) && !isLocked(target) &&
           !isLocked(source);
}

void PuzzleGame::drop(int target, int source) {
    if (!canSwap(target, source)) {
        return;
    }
    state_.LastTarget = target;
    state_.LastSource = source;
    PuzzlePart& one = *part(target);
    PuzzlePart& other = *part(source);
    std::swap(one.Left, other.Left);
    std::swap(one.Top, other.Top);
    std::swap(one.Tag, other.Tag);
    if (state_.Playing) {
        countMove();
    }
}

void PuzzleGame::countMove() {
    ++state_.Turns;
    state_.Score -= movePrice;
    events_.Counter(state_.Turns);
    if (isWhole()) {
        tmrScore_.Enabled = false;
        state_.Playing = false;
        events_.Finished();
    }
    if (state_.Turns == 1) {
        // Kept: it runs on when the first move made the picture whole.
        tmrScore_.Enabled = true;
    }
}

void PuzzleGame::Undo() {
    drop(state_.LastTarget, state_.LastSource);
}

/// A number from 0 to one below the number of pieces.
int PuzzleGame::draw() {
    // In double: as a float the product can round up to the number itself.
    return static_cast<int>(static_cast<double>(Rnd()) * RowCount * ColCount);
}

void PuzzleGame::Solve(bool Automatic) {
    if (!Automatic) {
        state_.SolveByClick = true;
        return;
    }
    if (parts_.empty() || isWhole()) {
        return;
    }
    const PuzzlePart* misplaced = nullptr;
    while (misplaced == nullptr || misplaced->standsRight()) {
        misplaced = part(draw()); // kept: 0 is drawn in vain, and the last piece never
    }
    drop(misplaced->Index, misplaced->Tag);
    charge(solvePrice);
    state_.Score += movePrice;
}

void PuzzleGame::press(int piece) {
    const PuzzlePart* pressed = part(piece);
    if (!state_.SolveByClick || pressed == nullptr || pressed->standsRight()) {
        return;
    }
    state_.SolveByClick = false;
    drop(pressed->Tag, piece);
    charge(repairPrice);
    state_.Score += movePrice;
}

void PuzzleGame::showFullPic() {
    if (parts_.empty()) {
        return;
    }
    const double width = ColCount * parts_.front().Width;
    const double height = RowCount * parts_.front().Height;
    useTwips(picShow_);
    picShow_.setSize(width, height);
    picShow_.PaintPicture(picSource_.Image(), 0, 0, width, height, 0, 0, picSource_.Width(),
                          picSource_.Height());
    picShow_.Visible = true;
    tmrShowFullPic_.Enabled = true;
}

void PuzzleGame::showParts(bool ShowCorrect) {
    for (PuzzlePart& piece : parts_) {
        piece.Visible = piece.standsRight() == ShowCorrect;
    }
    tmrShowCorrect_.Enabled = true;
}

void PuzzleGame::tickShuffle() {
    constexpr int slow = 500;
    const int count = RowCount * ColCount;
    state_.ShufflePartCount = count;
    ++state_.ShuffleStep;
    if (tmrShuffle_.Interval >= slow) {
        tmrShuffle_.Interval = count < 50 ? 200 - 4 * count : 1;
    }
    if (state_.ShuffleStep > count) {
        tmrShuffle_.Enabled = false;
        state_.Playing = true;
        events_.Counter(state_.Turns);
        return;
    }
    for (int swap = 0; swap < 2 * Level + 2; ++swap) {
        drop(draw() + 1, state_.ShuffleStep);
        events_.letOthersRun();
    }
}

void PuzzleGame::tickScore() {
    ++state_.Seconds;
    if (state_.Seconds % 5 == 0 && Level == hardLevel) {
        state_.Score -= 10;
    }
    state_.Score = std::max(state_.Score, 0);
    events_.Score(state_.Score, state_.Seconds);
}

void PuzzleGame::tickShowFullPic() {
    tmrShowFullPic_.Enabled = false;
    charge(fullPicPrice);
    picShow_.Visible = false;
}

void PuzzleGame::tickShowCorrect() {
    tmrShowCorrect_.Enabled = false;
    for (PuzzlePart& piece : parts_) {
        piece.Visible = true;
    }
    charge(showPartsPrice);
}

} // namespace kaart
