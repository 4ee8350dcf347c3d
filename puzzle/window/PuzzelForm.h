#pragma once

#include <QDialog>

namespace kaart {

class Design;
class Puzzle;

/// "Puzzelen": one game on a copy of the design, as the puzzle panel's choice in Design::Puzzel
/// says. The game begins when the window is made. At its end it asks for the player's name and
/// hands the result to the list of scores; without a name nothing is kept. Closing the window at
/// any moment ends the game.
class PuzzelForm : public QDialog {
    Q_OBJECT

public:
    explicit PuzzelForm(Design& design, QWidget* parent = nullptr);

    /// Kept: no control calls this. 0 brings a piece home, any other number has the next press do
    /// so; nothing happens while the puzzle is disabled.
    void Solve(int flag);

    void reject() override;

private:
    void startGame();
    void showDesign();
    void showCounter(int turns);
    void showScore(int score, int seconds);
    void finish();

    Design& design_;
    Puzzle* puzzle_ = nullptr;
};

} // namespace kaart
