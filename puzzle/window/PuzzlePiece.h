#pragma once

#include "controls/SurfaceView.h"
#include "puzzle/PuzzlePart.h"

namespace kaart {

/// What the player does with a piece at the moment.
struct PieceMarks {
    bool focus = false;  ///< the keyboard stands here
    bool picked = false; ///< it is being moved
    bool target = false; ///< it would change places with the picked one

    bool operator==(const PieceMarks&) const = default;
};

/// A piece as the player sees it. Leaves mouse and keys to the puzzle around it.
class PuzzlePiece : public SurfaceView {
    Q_OBJECT
    Q_PROPERTY(int Index READ index)
    Q_PROPERTY(int Tag READ cell)

public:
    PuzzlePiece(const PuzzlePart& part, QWidget* parent);

    int index() const { return index_; }
    int cell() const { return cell_; }
    /// Shows place, border and visibility of its part as they are now.
    void follow(const PuzzlePart& part);
    void setMarks(const PieceMarks& marks);
    /// What follows the mouse during a drag: the piece, translucent, in a crisp outline.
    QPixmap ghost() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const int index_;
    int cell_ = 0;
    int border_ = 0;
    PieceMarks marks_;
};

} // namespace kaart
