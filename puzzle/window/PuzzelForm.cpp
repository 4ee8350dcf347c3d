#include "puzzle/window/PuzzelForm.h"

#include "controls/ControlTable.h"
#include "controls/Labels.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/RecordFile.h"
#include "puzzle/GameTexts.h"
#include "puzzle/window/Puzzle.h"
#include "puzzle/window/ScoreForm.h"

#include <QInputDialog>
#include <QLabel>
#include <QPointer>

namespace kaart {

namespace {

// The puzzle's room, twips.
constexpr int longSide = 9600;
constexpr int shortSide = 6600;
constexpr int puzzleLeft = 210;
constexpr int puzzleTop = 210;

/// As they stand for a lying design.
const ControlRow controls[] = {
    {ControlKind::Value, "", "Label2", 120, 120, 9795, 6790},
    {ControlKind::Frame, "", "Frame1", 135, 6990, 9750, 2880, "Puzzel"},
    {ControlKind::Surface, "Frame1", "Image1", 210, 315, 3000, 1950},
    {ControlKind::Label, "Frame1", "Label3", 3420, 330, 4650, 240},
    {ControlKind::Label, "Frame1", "Label4", 3420, 600, 4650, 240},
    {ControlKind::Label, "Frame1", "Label5", 3420, 870, 4650, 240},
    {ControlKind::Label, "Frame1", "Label6", 3420, 1140, 4650, 240},
    {ControlKind::Label, "Frame1", "Label1", 3420, 1590, 4650, 1200,
     "Selecteer één van de vakjes van de afbeelding, verschuif deze met ingedrukte "
     "linkermuisknop naar de juiste plaats waar dit vakje moet komen te staan."},
    {ControlKind::Button, "Frame1", "CancelKnop", 8580, 2340, 990, 360, "", " Sluiten ",
     "annuleren", "Esc"},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
};

struct Place {
    const char* name;
    int left;
    int top;
    int width;
    int height;
};

/// As they stand for an upright or a square design.
constexpr Place upright[] = {
    {"Label2", 120, 120, 6790, 9780},     {"Frame1", 7050, 30, 2850, 9855},
    {"Image1", 210, 315, 2400, 3300},     {"Label3", 240, 3780, 2490, 240},
    {"Label4", 240, 4050, 2490, 240},     {"Label5", 240, 4320, 2490, 240},
    {"Label6", 240, 4590, 2490, 240},     {"Label1", 240, 7500, 2340, 1500},
    {"CancelKnop", 1665, 9300, 990, 360},
};

} // namespace

PuzzelForm::PuzzelForm(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("PuzzelForm"));
    setWindowTitle(QStringLiteral("Puzzelen"));
    setFixedSize(pixels(10110), pixels(10440));
    setBackColor(*this, windowColor);
    buildControls(*this, controls);
    puzzle_ = new Puzzle(this);
    puzzle_->setObjectName(QStringLiteral("Puzzle1"));
    setTabOrder(puzzle_, &control<QWidget>(*this, "CancelKnop"));
    makeParagraph(control<QLabel>(*this, "Label1"));
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &PuzzelForm::reject);
    connect(puzzle_, &Puzzle::Counter, this, &PuzzelForm::showCounter);
    connect(puzzle_, &Puzzle::Score, this, &PuzzelForm::showScore);
    connect(puzzle_, &Puzzle::Finished, this, &PuzzelForm::finish);
    startGame();
}

void PuzzelForm::startGame() {
    showDesign();
    const QImage picture = control<SurfaceView>(*this, "BackPic").Image();
    const bool landscape = picture.width() > picture.height();
    const QSize room = landscape ? QSize(longSide, shortSide) : QSize(shortSide, longSide);
    place(*puzzle_, puzzleLeft, puzzleTop, room.width(), room.height());
    puzzle_->setEnabled(true);
    puzzle_->mainPicture(picture);
    puzzle_->ColCount = design_.Puzzel.PuzzleCols;
    puzzle_->RowCount = design_.Puzzel.PuzzleRows;
    puzzle_->Level = design_.Puzzel.PuzzleLevel;
    control<QLabel>(*this, "Label3").setText(QStringLiteral("Beurten : 0"));
    control<QLabel>(*this, "Label4").setText(QStringLiteral("Tijd : ") + gameTime(0));
    control<QLabel>(*this, "Label5").setText(QStringLiteral("Score"));
    control<QLabel>(*this, "Label6")
        .setText(QStringLiteral("Moeilijkheidsgraad : ") + levelLetter(puzzle_->Level));
    puzzle_->setFocus();
    puzzle_->Start(room.width(), room.height(), true);
}

void PuzzelForm::showDesign() {
    auto& back = control<SurfaceView>(*this, "BackPic");
    back.surface().AutoSize = true;
    back.surface().setPicture(design_.Pic().Image());
    back.hide();
    const QImage picture = back.Image();
    if (picture.width() <= picture.height()) {
        for (const Place& row : upright) {
            place(control<QWidget>(*this, row.name), row.left, row.top, row.width, row.height);
        }
    }
    auto& image = control<SurfaceView>(*this, "Image1");
    PixelSurface& small = image.surface();
    small.setSize(image.width(), image.height());
    small.PaintPicture(picture, 0, 0, image.width(), image.height(), 0, 0, picture.width(),
                       picture.height());
}

void PuzzelForm::showCounter(int turns) {
    if (turns == 0) {
        puzzle_->setEnabled(true);
    }
    control<QLabel>(*this, "Label3").setText(QStringLiteral("Beurten : %1").arg(turns));
    design_.Puzzel.LastTurns = turns;
}

void PuzzelForm::showScore(int score, int seconds) {
    control<QLabel>(*this, "Label4").setText(QStringLiteral("Tijd : ") + gameTime(seconds));
    control<QLabel>(*this, "Label5").setText(QStringLiteral("Score : %1").arg(score));
    design_.Puzzel.LastScore = score;
}

void PuzzelForm::finish() {
    const QPointer<PuzzelForm> self = this;
    PuzzleResult& result = design_.Puzzel;
    const QString time = control<QLabel>(*this, "Label4").text().right(8);
    const QString question = QStringLiteral("Je hebt de puzzel goed opgelost in een tijd van %1\r\n"
                                            "in %2 beurten. Geef jouw naam voor de scorelijst...");
    const QString name =
        QInputDialog::getText(this, QString(), question.arg(time).arg(result.LastTurns));
    if (!self || trimBlanks(name).isEmpty()) {
        return;
    }
    puzzle_->setEnabled(false);
    result.ScoreName = name;
    result.ScoreGrid = gridText(result.PuzzleCols, result.PuzzleRows, result.PuzzleLevel);
    result.ScoreTime = time;
    ScoreForm(design_, result, this).exec();
}

void PuzzelForm::Solve(int flag) {
    if (puzzle_->isEnabled()) {
        puzzle_->Solve(flag == 0);
    }
}

void PuzzelForm::reject() {
    puzzle_->UnloadAllObjects();
    // A question that waited on would hold this window's opener up.
    for (auto* question : findChildren<QDialog*>()) {
        question->reject();
    }
    QDialog::reject();
}

} // namespace kaart
