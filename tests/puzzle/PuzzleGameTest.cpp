#include "puzzle/PuzzleGame.h"

#include "design/surface/Random.h"
#include "puzzle/GameTexts.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// A game that is driven by calls and writes down its events.
struct Table {
    Table(int level, int columns, int rows,
          const QImage& picture = QImage(8, 8, QImage::Format_RGB32)) {
        game.Level = level;
        game.ColCount = columns;
        game.RowCount = rows;
        game.mainPicture(picture);
    }
    PuzzleEvents events() {
        PuzzleEvents events;
        events.Counter = [this](int turns) { seen << QStringLiteral("Counter %1").arg(turns); };
        events.Score = [this](int score, int) { reported = score; };
        events.Finished = [this] { seen << "Finished"; };
        return events;
    }
    /// Deals as the seed says; the number of ticks that it took.
    int deal(unsigned seed) {
        game.Start(600, 600, true);
        homes.clear();
        for (const PuzzlePart& part : game.Parts()) {
            homes << QPointF(part.Left, part.Top);
        }
        seedRnd(seed);
        int ticks = 0;
        for (; game.tmrShuffle().Enabled; ++ticks) {
            game.tickShuffle();
        }
        return ticks;
    }
    int count() const { return game.ColCount * game.RowCount; }
    int tag(int k) const { return game.Parts()[static_cast<std::size_t>(k - 1)].Tag; }
    bool isFree(int k) const {
        const int row = (k - 1) % game.RowCount;
        return game.Level > 0 || ((k - 1) / game.RowCount > 0 && row < game.RowCount - 1);
    }
    /// 0 when the picture is whole.
    int firstMisplaced() const {
        for (int k = 1; k <= count(); ++k) {
            if (tag(k) != k) {
                return k;
            }
        }
        return 0;
    }

    QList<QPointF> homes; ///< the place of each cell
    QStringList seen;
    int reported = -1;
    PuzzleGame game{events()};
};

/// Plays at random and keeps the score by the table of effects.
class Player {
public:
    Player(Table& table, unsigned seed) : table_(table), random_(seed) {
        score_ = table.game.state().Score;
    }
    int score() const { return score_; }
    int turns() const { return turns_; }
    int reported() const { return reported_; }

    void act() {
        PuzzleGame& game = table_.game;
        const int one = draw(table_.count()) + 1;
        const int other = draw(table_.count()) + 1;
        const int level = game.Level + 1;
        switch (draw(7)) {
        case 0:
            game.Undo();
            return pay(10);
        case 1:
            game.Solve(true);
            return pay(level * 100);
        case 2:
            game.Solve(false);
            game.press(table_.firstMisplaced());
            return pay(level * 250);
        case 3:
            game.showFullPic();
            game.tickShowFullPic();
            return charge(level * 250);
        case 4:
            game.showParts(one % 2 == 0);
            game.tickShowCorrect();
            return charge(level * 125);
        case 5:
            game.tickScore();
            ++seconds_;
            charge(game.Level == 2 && seconds_ % 5 == 0 ? 10 : 0);
            score_ = std::max(score_, 0);
            reported_ = score_;
            return;
        default:
            game.drop(one, other);
            if (one != other && table_.isFree(one) && table_.isFree(other)) {
                pay(10);
            }
        }
    }

private:
    int draw(int below) { return std::uniform_int_distribution<>(0, below - 1)(random_); }
    void pay(int price) {
        ++turns_;
        charge(price);
    }
    void charge(int price) { score_ -= price; }

    Table& table_;
    std::mt19937 random_;
    int score_;
    int turns_ = 0;
    int reported_ = -1;
    int seconds_ = 0;
};

} // namespace

class PuzzleGameTest : public QObject {
    Q_OBJECT

    using Room = Rows<QSize, QSize, QSize, QSize, QPointF>;

private slots:
    void PiecesFillTheirRoomWithTheirTiles_data() {
        const Room row;
        row("upright", {440, 640}, {6600, 9600}, {3, 3}, {6608, 9600}, {4398.54, 6403.33});
        row("lying", {640, 440}, {9600, 6600}, {6, 4}, {9589, 6600}, {7979.70, 4951.25});
        row("square, by height", {50, 50}, {9600, 6600}, {5, 5}, {6600, 6600}, {5270, 5280});
        row("square, by width", {50, 50}, {6600, 9600}, {4, 3}, {6625, 6625}, {4960, 4420});
        row("strip", {640, 100}, {9600, 6600}, {3, 3}, {9625, 1525}, {6410, 1020});
    }
    void PiecesFillTheirRoomWithTheirTiles() {
        const auto [picture, room, grid, needed, lastPlace] = Room::now();
        std::mt19937 random(1);
        const QImage source = randomPicture(picture.width(), picture.height(), random);
        QSize resized;
        PuzzleEvents events;
        events.Resize = [&](int width, int height) { resized = {width, height}; };
        PuzzleGame game(events);
        game.ColCount = grid.width();
        game.RowCount = grid.height();
        game.mainPicture(source);
        QVERIFY(game.Start(room.width(), room.height(), true));
        QCOMPARE(resized, needed);
        const PuzzlePart& last = game.Parts().back();
        QVERIFY(qAbs(last.Left - lastPlace.x()) < 0.01 && qAbs(last.Top - lastPlace.y()) < 0.01);
        for (const PuzzlePart& part : game.Parts()) {
            const int i = (part.Index - 1) / grid.height();
            const int j = (part.Index - 1) % grid.height();
            const double x = (picture.width() - 4.0) / grid.width() * i;
            const double y = (picture.height() - 4.0) / grid.height() * j;
            const QPoint corner(static_cast<int>(std::nearbyint(x)),
                                static_cast<int>(std::nearbyint(y)));
            QCOMPARE(part.Picture.Image().pixel(0, 0), source.pixel(corner));
            QCOMPARE(part.Tag + part.BorderStyle, part.Index + 1);
        }
    }

    void TheOpeningScoreFollowsGridAndLevel() {
        for (const auto& [level, score] : {std::pair(0, 400), {1, 945}, {2, 990}}) {
            Table table(level, 3, 3);
            table.game.Start(600, 600, false);
            QCOMPARE(table.game.state().Score, score);
            QCOMPARE(table.game.tmrShuffle().Interval, 3000);
            table.game.tickShuffle();
            QCOMPARE(table.game.tmrShuffle().Interval, 164);
        }
    }

    void ThousandsOfGamesKeepTheRules() {
        for (unsigned seed = 0; seed < 3000; ++seed) {
            Table table(static_cast<int>(seed % 3), 3 + static_cast<int>(seed / 3 % 4),
                        3 + static_cast<int>(seed / 12 % 4));
            const PuzzleGame& game = table.game;
            QCOMPARE(table.deal(seed), table.count() + 1);
            QCOMPARE(table.seen, QStringList("Counter 0"));
            std::vector<int> cells;
            for (int k = 1; k <= table.count(); ++k) {
                cells.push_back(table.tag(k));
                QVERIFY(table.isFree(k) || table.tag(k) == k);
                const PuzzlePart& part = game.Parts()[static_cast<std::size_t>(k - 1)];
                QCOMPARE(QPointF(part.Left, part.Top), table.homes[part.Tag - 1]);
            }
            std::sort(cells.begin(), cells.end());
            QCOMPARE(cells.front() + cells.back(), table.count() + 1);
            QVERIFY(std::adjacent_find(cells.begin(), cells.end()) == cells.end());

            Player player(table, seed);
            for (int step = 0; step < 40 && game.state().Playing && !game.isWhole(); ++step) {
                player.act();
                QCOMPARE(game.state().Score, player.score());
                QCOMPARE(game.state().Turns, player.turns());
                QCOMPARE(table.reported, player.reported());
                QCOMPARE(table.seen.contains("Finished"), table.firstMisplaced() == 0);
            }
            while (game.state().Playing && !game.isWhole()) {
                const int k = table.firstMisplaced();
                table.game.drop(k, table.tag(k));
            }
            if (game.state().Turns > 0) {
                const QString last = QStringLiteral("Counter %1").arg(game.state().Turns);
                QCOMPARE(table.seen.mid(table.seen.size() - 2), (QStringList{last, "Finished"}));
                QCOMPARE(table.seen.size(), game.state().Turns + 2);
                QCOMPARE(game.tmrScore().Enabled, game.state().Turns == 1);
            }
            if (!game.state().Playing) {
                // A finished game's pieces still move, uncounted.
                const qsizetype events = table.seen.size();
                const int k = game.RowCount + 1;
                table.game.drop(k, k + 1);
                QVERIFY(table.tag(k) == k + 1 && table.seen.size() == events);
            }
        }
    }

    void WithoutAPictureThereIsNothingToPlay() {
        Table table(0, 3, 3, QImage());
        QVERIFY(!table.game.Start(600, 600, true));
        QVERIFY(table.game.tmrShuffle().Enabled);
        table.game.tickShuffle();
        table.game.drop(5, 4);
        table.game.Solve(true);
        table.game.showFullPic();
        QCOMPARE(table.game.state().LastTarget, 0);
    }

    void TimeIsWrittenInThreeGroups() {
        QCOMPARE(gameTime(60), "00:01:00");
        QCOMPARE(gameTime(3661), "01:01:01");
        QCOMPARE(gameTime(360000), "100:00:00");
    }
};

KAART_TEST(PuzzleGameTest)
#include "PuzzleGameTest.moc"
