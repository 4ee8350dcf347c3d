#pragma once

#include "puzzle/PuzzleGame.h"
#include "puzzle/window/PuzzleClocks.h"

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;

namespace kaart {

class PuzzlePiece;
class SurfaceView;

/// A game of puzzle on screen: shows the pieces, runs the game's timers, and makes swaps of the
/// player's drags. With the mouse a piece is dragged onto another. With the keyboard Tab and the
/// arrows choose a piece, Space or Enter picks it up, the arrows choose another and Space or Enter
/// drops it there; Escape puts it back. The rules are those of PuzzleGame.
class Puzzle : public QWidget {
    Q_OBJECT

public:
    explicit Puzzle(QWidget* parent = nullptr);

    // To be set before Start.
    int Level = 0;
    int RowCount = 0;
    int ColCount = 0;

    void mainPicture(const QImage& picture) { game_->mainPicture(picture); }
    /// Called once; a failure to build the pieces is shown in a message box.
    void Start(int MaxWidth, int MaxHeight, bool ShowBorders);
    const PixelSurface& Thumbnail() const { return game_->picSmall(); }
    void CheckBorder(bool borders);
    void Undo();
    void Solve(bool Automatic);
    void showFullPic();
    void showParts(bool ShowCorrect);
    /// Takes the pieces away and stops the game for good.
    void UnloadAllObjects();

    const PuzzleGame& game() const { return *game_; }

signals:
    void Counter(int Turns);
    void Resize(int width, int height);
    void Score(int score, int seconds);
    void Finished();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    PuzzleEvents events();
    template <typename Run>
    void act(const Run& run);
    void refresh();
    void showMarks();
    void dragTo(const QPoint& at);
    bool cancelDrag();
    void pickOrDrop();
    void moveFocus(int columns, int rows);
    PuzzlePiece* pieceAt(const QPoint& at) const;
    PuzzlePiece* pieceInFocus() const;

    // Shared with the calls that run: a handler of an event may take this window away.
    std::shared_ptr<PuzzleGame> game_;
    PuzzleClocks clocks_;
    std::vector<PuzzlePiece*> pieces_;
    SurfaceView* overlay_;
    QLabel* ghost_;
    bool unloaded_ = false;

    int pressed_ = 0; ///< the piece under the mouse button, 0 none
    int picked_ = 0;  ///< the piece that is being moved, 0 none
    int target_ = 0;  ///< the piece under a drag of the mouse
    QPoint pressedAt_;
    QPoint grip_; ///< of the ghost: from its top left to the mouse
    int column_ = 0;
    int row_ = 0;           ///< where the keyboard stands, both from 0
    bool keyboard_ = false; ///< the player uses it: its place is shown
};

} // namespace kaart
