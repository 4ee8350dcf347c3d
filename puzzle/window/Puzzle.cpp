#include "puzzle/window/Puzzle.h"

#include "controls/ArrowStep.h"
#include "controls/Messages.h"
#include "controls/SurfaceView.h"
#include "design/session/Algemeen.h"
#include "puzzle/window/PuzzlePiece.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

namespace kaart {

namespace {

SurfaceView* hiddenView(QWidget* parent, const QString& name, const PixelSurface& shown) {
    auto* view = new SurfaceView(parent);
    view->setObjectName(name);
    view->show(shown);
    view->hide();
    return view;
}

} // namespace

Puzzle::Puzzle(QWidget* parent)
    : QWidget(parent),
      game_(std::make_shared<PuzzleGame>(events())),
      clocks_(this, [this](GameTick tick) { act(tick); }),
      overlay_(hiddenView(this, QStringLiteral("picShow"), game_->picShow())),
      ghost_(new QLabel(this)) {
    setAccessibleName(QStringLiteral("Puzzel"));
    setFocusPolicy(Qt::StrongFocus);
    ghost_->setObjectName(QStringLiteral("picDrag"));
    ghost_->setAttribute(Qt::WA_TransparentForMouseEvents);
    ghost_->hide();
}

PuzzleEvents Puzzle::events() {
    const QPointer<Puzzle> self = this;
    // What happened is on view before the host hears of it.
    const auto tell = [self](const auto& emitIt) {
        if (self) {
            self->refresh();
            emitIt();
        }
    };
    PuzzleEvents events;
    events.Counter = [=](int turns) { tell([=] { emit self->Counter(turns); }); };
    events.Resize = [=](int width, int height) { tell([=] { emit self->Resize(width, height); }); };
    events.Score = [=](int score, int seconds) { tell([=] { emit self->Score(score, seconds); }); };
    events.Finished = [=] { tell([=] { emit self->Finished(); }); };
    events.letOthersRun = [=] {
        tell([=] {
            // A window that is being made has nothing to show, and isn't modal yet.
            if (self->isVisible()) {
                DoEvents();
            }
        });
    };
    return events;
}

template <typename Run>
void Puzzle::act(const Run& run) {
    const QPointer<Puzzle> self = this;
    const auto game = game_;
    run(*game);
    if (self) {
        refresh();
    }
}

void Puzzle::Start(int MaxWidth, int MaxHeight, bool ShowBorders) {
    game_->Level = Level;
    game_->RowCount = RowCount;
    game_->ColCount = ColCount;
    const bool built = game_->Start(MaxWidth, MaxHeight, ShowBorders);
    for (const PuzzlePart& part : game_->Parts()) {
        pieces_.push_back(new PuzzlePiece(part, this));
    }
    hiddenView(this, QStringLiteral("picSource"), game_->picSource());
    hiddenView(this, QStringLiteral("picSmall"), game_->picSmall());
    const QPointer<Puzzle> self = this;
    if (!built) {
        showMessage(this, QStringLiteral("Error"),
                    QStringLiteral("Please close some of other puzzles and try again."),
                    QMessageBox::Critical);
    }
    if (self) {
        refresh();
    }
}

void Puzzle::CheckBorder(bool borders) {
    act([borders](PuzzleGame& game) { game.CheckBorder(borders); });
}

void Puzzle::Undo() {
    act([](PuzzleGame& game) { game.Undo(); });
}

void Puzzle::Solve(bool Automatic) {
    act([Automatic](PuzzleGame& game) { game.Solve(Automatic); });
}

void Puzzle::showFullPic() {
    act([](PuzzleGame& game) { game.showFullPic(); });
}

void Puzzle::showParts(bool ShowCorrect) {
    act([ShowCorrect](PuzzleGame& game) { game.showParts(ShowCorrect); });
}

void Puzzle::UnloadAllObjects() {
    cancelDrag();
    unloaded_ = true;
    for (PuzzlePiece* piece : pieces_) {
        // Not at once: a piece's own mouse event may have led here.
        piece->hide();
        piece->deleteLater();
    }
    pieces_.clear();
    game_->UnloadAllObjects();
    refresh();
}

void Puzzle::refresh() {
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        pieces_[i]->follow(game_->Parts()[i]);
    }
    const bool covered = game_->picShow().Visible && !unloaded_;
    if (covered && overlay_->isHidden()) {
        overlay_->show(game_->picShow());
        overlay_->raise();
    }
    overlay_->setVisible(covered);
    clocks_.follow(*game_, !unloaded_);
    showMarks();
}

void Puzzle::showMarks() {
    const PuzzlePiece* focus = keyboard_ && hasFocus() ? pieceInFocus() : nullptr;
    for (PuzzlePiece* piece : pieces_) {
        const bool here = focus != nullptr && piece == focus;
        const bool target =
            piece->index() == target_ || (here && game_->canSwap(piece->index(), picked_));
        piece->setMarks({here, piece->index() == picked_, target});
    }
}

PuzzlePiece* Puzzle::pieceAt(const QPoint& at) const {
    return qobject_cast<PuzzlePiece*>(childAt(at));
}

PuzzlePiece* Puzzle::pieceInFocus() const {
    const int cell = column_ * RowCount + row_ + 1;
    const auto found = std::find_if(pieces_.begin(), pieces_.end(), [cell](const auto* piece) {
        return piece->cell() == cell && !piece->isHidden();
    });
    return found == pieces_.end() ? nullptr : *found;
}

void Puzzle::mousePressEvent(QMouseEvent* event) {
    cancelDrag();
    keyboard_ = false;
    const QPoint at = event->position().toPoint();
    const PuzzlePiece* piece = pieceAt(at);
    if (event->button() == Qt::LeftButton && piece != nullptr) {
        pressed_ = piece->index();
        pressedAt_ = at;
        grip_ = at - piece->pos();
        column_ = (piece->cell() - 1) / RowCount;
        row_ = (piece->cell() - 1) % RowCount;
        act([k = pressed_](PuzzleGame& game) { game.press(k); });
    }
}

void Puzzle::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (pressed_ == 0 || !event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    if (ghost_->isHidden()) {
        if ((at - pressedAt_).manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        picked_ = pressed_;
        const PuzzlePiece& piece = *pieces_[static_cast<std::size_t>(picked_ - 1)];
        ghost_->setPixmap(piece.ghost());
        ghost_->resize(piece.size());
        ghost_->raise();
        ghost_->show();
    }
    dragTo(at);
}

void Puzzle::dragTo(const QPoint& at) {
    ghost_->move(at - grip_);
    const PuzzlePiece* under = pieceAt(at);
    const bool accepts = under != nullptr && game_->canSwap(under->index(), picked_);
    target_ = accepts ? under->index() : 0;
    showMarks();
}

void Puzzle::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const bool dragged = !ghost_->isHidden();
    const int source = picked_;
    const PuzzlePiece* target = pieceAt(event->position().toPoint());
    cancelDrag();
    if (dragged && target != nullptr) {
        act([k = target->index(), source](PuzzleGame& game) { game.drop(k, source); });
    }
}

/// Puts the piece in hand back. False when there was none.
bool Puzzle::cancelDrag() {
    const bool hadOne = picked_ != 0;
    pressed_ = 0;
    picked_ = 0;
    target_ = 0;
    ghost_->hide();
    showMarks();
    return hadOne;
}

void Puzzle::keyPressEvent(QKeyEvent* event) {
    const bool dragging = !ghost_->isHidden();
    if (event->key() == Qt::Key_Escape) {
        event->setAccepted(cancelDrag());
        return;
    }
    if (dragging || pieces_.empty()) {
        return;
    }
    if (const auto step = arrowStep(event->key())) {
        return moveFocus(step->x(), step->y());
    }
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) {
            pickOrDrop();
        }
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Puzzle::moveFocus(int columns, int rows) {
    keyboard_ = true;
    column_ = std::clamp(column_ + columns, 0, ColCount - 1);
    row_ = std::clamp(row_ + rows, 0, RowCount - 1);
    setAccessibleDescription(QStringLiteral("Kolom %1, rij %2").arg(column_ + 1).arg(row_ + 1));
    showMarks();
}

void Puzzle::pickOrDrop() {
    keyboard_ = true;
    const PuzzlePiece* piece = pieceInFocus();
    if (piece == nullptr) {
        return;
    }
    const int k = piece->index();
    if (game_->state().SolveByClick) {
        act([k](PuzzleGame& game) { game.press(k); });
    } else if (picked_ == 0) {
        picked_ = k;
        showMarks();
    } else {
        const int source = picked_;
        cancelDrag();
        act([k, source](PuzzleGame& game) { game.drop(k, source); });
    }
}

bool Puzzle::focusNextPrevChild(bool next) {
    const int place = row_ * ColCount + column_ + (next ? 1 : -1);
    if (pieces_.empty() || place < 0 || place >= ColCount * RowCount) {
        return QWidget::focusNextPrevChild(next);
    }
    column_ = place % ColCount;
    row_ = place / ColCount;
    moveFocus(0, 0);
    return true;
}

void Puzzle::focusInEvent(QFocusEvent* event) {
    const bool back = event->reason() == Qt::BacktabFocusReason;
    if (back || event->reason() == Qt::TabFocusReason) {
        column_ = back ? ColCount - 1 : 0;
        row_ = back ? RowCount - 1 : 0;
        keyboard_ = true;
    }
    showMarks();
}

void Puzzle::focusOutEvent(QFocusEvent*) {
    cancelDrag();
}

void Puzzle::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        cancelDrag();
    }
    QWidget::changeEvent(event);
}

} // namespace kaart
