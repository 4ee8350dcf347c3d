#include "puzzle/ScoreList.h"
#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <array>

using namespace kaart;

namespace {

const QString player = QStringLiteral("Anneke");

QWidget& piece(const QWidget& puzzle, int number) {
    return *puzzle.findChild<QWidget*>(QStringLiteral("picParts(%1)").arg(number));
}

int cellOf(const QWidget& puzzle, int number) {
    return piece(puzzle, number).property("Tag").toInt();
}

/// The pieces of a 3 x 3 puzzle, or of its corner that an easy one leaves free, out of place.
QList<int> misplaced(const QWidget& puzzle) {
    QList<int> found;
    for (int number = 1; number <= 9; ++number) {
        if (cellOf(puzzle, number) != number) {
            found << number;
        }
    }
    return found;
}

/// Drags a piece onto another in steps as small as those of a hand.
void dragOnto(User& user, QWidget& puzzle, int number, int target) {
    constexpr int steps = 40;
    const QPoint from = piece(puzzle, number).geometry().center();
    const QPoint way = piece(puzzle, target).geometry().center() - from;
    QList<QPoint> path;
    for (int i = 0; i <= steps; ++i) {
        path << from + way * i / steps;
    }
    user.drag(puzzle, path);
}

void dragHome(User& user, QWidget& puzzle, int number) {
    for (int other = 1; other <= 9; ++other) {
        if (cellOf(puzzle, other) == number) {
            dragOnto(user, puzzle, number, other);
            return;
        }
    }
}

void shuffle(User& user, QWidget& puzzle) {
    auto* timer = puzzle.findChild<QTimer*>(QStringLiteral("tmrShuffle"));
    for (int tick = 0; tick < 20 && timer->isActive(); ++tick) {
        QMetaObject::invokeMethod(timer, "timeout");
        user.wait(20);
    }
    if (timer->isActive()) {
        user.fail(QStringLiteral("the pieces are shuffled without an end"));
    }
    if (misplaced(puzzle).isEmpty()) { // the lot may fall so
        dragOnto(user, puzzle, 4, 5);
    }
}

void readScores(User& user) {
    auto& list = dynamic_cast<QTreeView&>(user.find(QStringLiteral("ListView1")));
    user.photo(QStringLiteral("scorelijst"));
    const int added = list.model()->rowCount() - 1;
    if (list.model()->index(added, 0).data().toString() != player ||
        list.model()->index(added, 1).data().toString().isEmpty()) {
        user.fail(QStringLiteral("the player is not in the list"));
    }
    QHeaderView* header = list.header();
    const int score = header->count() - 1;
    user.clickAt(*header->viewport(),
                 {header->sectionViewportPosition(score) + 10, header->height() / 2});
    if (!list.model()->headerData(score, Qt::Horizontal, Qt::DecorationRole).isValid()) {
        user.fail(QStringLiteral("the list is not sorted by score"));
    }
    user.click(QStringLiteral("CancelKnop"));
}

/// The last move, the question that follows it and the list that follows the answer.
void finish(User& user, QWidget& puzzle) {
    QTimer scores;
    QObject::connect(&scores, &QTimer::timeout, [&] {
        const QWidget* front = QApplication::activeModalWidget();
        if (front != nullptr && front->objectName() == QStringLiteral("ScoreForm")) {
            scores.stop();
            readScores(user);
        }
    });
    QTimer::singleShot(50, [&user] { user.photo(QStringLiteral("stukje-gesleept")); });
    user.during([&] { dragHome(user, puzzle, misplaced(puzzle).first()); },
                [&] {
                    auto* name = QApplication::activeModalWidget()->findChild<QLineEdit*>();
                    QTest::keyClicks(name, player);
                    user.photo(QStringLiteral("puzzel-opgelost"));
                    scores.start(20);
                    user.press(Qt::Key_Return);
                });
}

/// Others have played before.
void fillScores(const Design& design) {
    SavePuzzel({.Rows = {{QStringLiteral("Daan"), QStringLiteral("4 x 4            S"),
                          QStringLiteral("00:02:41"), QStringLiteral("23"), QStringLiteral("185")},
                         {QStringLiteral("Sophie"), QStringLiteral("3 x 3            M"),
                          QStringLiteral("00:01:12"), QStringLiteral("11"), QStringLiteral("240")},
                         {QStringLiteral("Opa Kees"), QStringLiteral("6 x 5            S"),
                          QStringLiteral("00:06:05"), QStringLiteral("44"), QStringLiteral("310")}},
                .ColumnCount = scoreColumns},
               design.Folders.in(QStringLiteral("Data/Scorelijst.col")));
}

void solvePuzzle(User& user, Design& design) {
    fillScores(design);
    user.choose(QStringLiteral("Combo6"), QStringLiteral("G"));
    user.during([&] { user.click(QStringLiteral("StartKnop")); },
                [&] {
                    QWidget& puzzle = user.find(QStringLiteral("Puzzle1"));
                    user.photo(QStringLiteral("puzzel"));
                    shuffle(user, puzzle);
                    for (int move = 0; move < 9 && misplaced(puzzle).size() > 2; ++move) {
                        dragHome(user, puzzle, misplaced(puzzle).first());
                    }
                    finish(user, puzzle);
                    user.click(QStringLiteral("CancelKnop"));
                });
    QFile list(design.Folders.in(QStringLiteral("Data/Scorelijst.col")));
    if (!list.open(QIODevice::ReadOnly) || !list.readAll().contains(player.toLatin1())) {
        user.fail(QStringLiteral("the score was not saved"));
    }
}

constexpr std::array table = {
    Chapter{"a puzzle", solvePuzzle},
};

} // namespace

std::span<const Chapter> puzzleChapters() {
    return table;
}
