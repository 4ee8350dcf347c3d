#pragma once

#include "design/session/Design.h"
#include "design/window/WindowTable.h"

#include <QWidget>

namespace kaart {

/// The panel `Frame9`: StartKnop takes the choice of its lists over into Design::Puzzel and opens
/// the puzzle, ScoreKnop opens the list of scores. A button whose window does not exist is
/// disabled.
class PuzzlePanel : public QObject {
    Q_OBJECT

public:
    PuzzlePanel(QWidget& window, Design& design, WindowTable windows);

private:
    void takeChoice();

    QWidget& window_;
    Design& design_;
};

} // namespace kaart
