#include "puzzle/window/PuzzelForm.h"

#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "design/session/Design.h"
#include "design/surface/Random.h"
#include "puzzle/window/Puzzle.h"
#include "puzzle/window/PuzzlePiece.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QTemporaryDir>

using namespace kaart;

namespace {

/// A design of a random picture, and a game on it.
struct Desk {
    explicit Desk(int level = 0, QSize size = {440, 640}) {
        std::mt19937 random(3);
        design.change([&](PixelSurface& pic) {
            pic.setSize(size.width(), size.height());
            pic.setPicture(randomPicture(size.width(), size.height(), random));
        });
        design.Puzzel.PuzzleLevel = level;
        form = std::make_unique<PuzzelForm>(design, &window);
        form->show();
    }
    Puzzle& puzzle() { return control<Puzzle>(*form, "Puzzle1"); }
    PuzzlePiece& piece(int k) { return control<PuzzlePiece>(*form, "picParts", k); }
    void tick(const char* timer) {
        QMetaObject::invokeMethod(&control<QTimer>(*form, timer), "timeout");
    }
    void shuffle() {
        seedRnd(8); // a deal that is not whole, neither before nor after its last swap
        while (form->isVisible() && !puzzle().game().state().Playing) {
            tick("tmrShuffle");
        }
    }
    QString label(const char* name) { return control<QLabel>(*form, name).text(); }
    /// Drags with the button held, from one place in the window to another.
    void drag(const QPoint& from, const QPoint& to) {
        QWidget* held = puzzle().childAt(from);
        const auto at = [&](const QPoint& point) { return held->mapFrom(&puzzle(), point); };
        QTest::mousePress(held, Qt::LeftButton, {}, at(from));
        for (const QPoint& stop : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at(stop), held->mapToGlobal(at(stop)), Qt::NoButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(held, &move);
        }
        QVERIFY(control<QWidget>(*form, "picDrag").isVisible());
        QTest::mouseRelease(held, Qt::LeftButton, {}, at(to));
    }
    /// Brings every piece home by dragging; the last drag opens the question for the name.
    void solve() {
        for (int k = 1; k <= 9; ++k) {
            const int cell = piece(k).cell();
            if (cell != k) {
                drag(piece(cell).geometry().center(), piece(k).geometry().topLeft() + QPoint(5, 5));
            }
        }
    }
    QList<QRect> places() {
        QList<QRect> found;
        for (int k = 1; k <= 9; ++k) {
            found << piece(k).geometry();
        }
        return found;
    }

    QTemporaryDir folder;
    Design design{{folder.path(), folder.path()}};
    QWidget window;
    std::unique_ptr<PuzzelForm> form;
};

/// Does something to each modal box that comes up, as long as it lives.
class Watcher {
public:
    explicit Watcher(const std::function<void(QDialog&)>& meet) {
        QObject::connect(&timer_, &QTimer::timeout, [meet] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                meet(*box);
            }
        });
        timer_.start(0);
    }

private:
    QTimer timer_;
};

} // namespace

class PuzzelFormTest : public QObject {
    Q_OBJECT

private slots:
    void AGamePlayedWithTheMouseReachesTheScoreList_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("with a name") << QStringLiteral(" Anna ");
        QTest::newRow("with blanks only: not kept") << QStringLiteral("  ");
    }
    void AGamePlayedWithTheMouseReachesTheScoreList() {
        QFETCH(QString, name);
        const bool kept = name.contains("Anna");
        Desk desk;
        const QList<QRect> whole = desk.places();
        desk.shuffle();
        desk.puzzle().Undo();
        for (int second = 0; second < 61; ++second) {
            desk.tick("tmrScore");
        }
        QCOMPARE(desk.label("Label4") + desk.label("Label5"),
                 QStringLiteral("Tijd : 00:01:01Score : 390"));
        QStringList seen;
        const Watcher answer([&](QDialog& box) {
            if (auto* question = qobject_cast<QInputDialog*>(&box)) {
                seen << question->labelText();
                question->setTextValue(name);
                question->accept();
                return;
            }
            seen << box.objectName() + QLatin1Char('|') + desk.design.Puzzel.ScoreName;
            box.reject();
        });
        desk.solve();
        QCOMPARE(desk.places(), whole);
        const PuzzleResult& result = desk.design.Puzzel;
        QCOMPARE(seen.value(0), QStringLiteral("Je hebt de puzzel goed opgelost in een tijd van "
                                               "00:01:01\r\nin %1 beurten. Geef jouw naam voor "
                                               "de scorelijst...")
                                    .arg(result.LastTurns));
        QCOMPARE(seen.value(1), kept ? QStringLiteral("ScoreForm| Anna ") : QString());
        QCOMPARE(result.ScoreGrid, kept ? QStringLiteral("3 x 3            G") : QString());
        QCOMPARE(result.ScoreTime, kept ? QStringLiteral("00:01:01") : QString());
        QCOMPARE(desk.label("Label3"), QStringLiteral("Beurten : %1").arg(result.LastTurns));
        QCOMPARE(result.LastScore, 390);
        QVERIFY(desk.form->isVisible() && desk.puzzle().isEnabled() != kept);
    }

    void KeysSwapTwoPiecesAndEscapePutsOneBack() {
        Desk desk(1);
        desk.shuffle();
        QApplication::setActiveWindow(desk.form.get());
        const auto at = [&](int cell) {
            int k = 1;
            while (desk.piece(k).cell() != cell) {
                ++k;
            }
            return k;
        };
        const auto press = [&](std::initializer_list<Qt::Key> keys) {
            for (const Qt::Key key : keys) {
                QTest::keyClick(desk.form->focusWidget(), key);
            }
        };
        const int second = at(4); // of the upper row
        const int below = at(5);
        press({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Escape, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(at(4), second);
        press({Qt::Key_Up, Qt::Key_Enter});
        QCOMPARE(at(4), below);
        QCOMPARE(at(5), second);
        QCOMPARE(desk.puzzle().game().state().Turns, 1);
        // The keyboard's place is seen: its piece shows more than picture and border.
        const PuzzlePiece& here = desk.piece(below);
        const QImage seen = desk.piece(below).grab().toImage();
        QVERIFY(seen.pixel(2, 2) != here.Image().pixel(2, 2));
        press({Qt::Key_Escape});
        QVERIFY(!desk.form->isVisible());
    }

    void TheDesignDecidesTheLayout_data() {
        QTest::addColumn<QSize>("design");
        QTest::addColumn<QSize>("puzzle");
        QTest::newRow("upright") << QSize(440, 640) << QSize(440, 640);
        QTest::newRow("square") << QSize(500, 500) << QSize(440, 640);
        QTest::newRow("lying") << QSize(640, 440) << QSize(640, 440);
    }
    void TheDesignDecidesTheLayout() {
        QFETCH(QSize, design);
        Desk desk(2, design);
        QTEST(desk.puzzle().size(), "puzzle");
        QCOMPARE(desk.label("Label6"), QStringLiteral("Moeilijkheidsgraad : M"));
        comparePictures(control<SurfaceView>(*desk.form, "BackPic").Image(),
                        desk.design.Pic().Image());
        const QList<QRect> places = desk.places();
        // Kept: a picture that fills the width has no margin there.
        const QRect room = desk.puzzle().rect().adjusted(0, 0, 1, 0);
        QVERIFY(room.contains(places.first() | places.last()));
        QCOMPARE(desk.piece(5).grab().toImage().pixelColor(70, 70),
                 desk.piece(5).Image().pixelColor(70, 70));
    }

    void ClosingAtAnyMomentEndsTheGame_data() {
        QTest::addColumn<bool>("inShuffle");
        QTest::addColumn<bool>("mainWindow");
        QTest::newRow("in the shuffle") << true << false;
        QTest::newRow("in the question") << false << false;
        QTest::newRow("main window, in the shuffle") << true << true;
        QTest::newRow("main window, in the question") << false << true;
    }
    void ClosingAtAnyMomentEndsTheGame() {
        QFETCH(bool, inShuffle);
        QFETCH(bool, mainWindow);
        Desk desk;
        desk.window.show();
        desk.form->hide();
        bool closed = false;
        const auto close = [&] {
            closed = true;
            mainWindow ? static_cast<void>(desk.window.close()) : desk.form->reject();
        };
        const Watcher meet([&](QDialog& box) {
            const bool question = qobject_cast<QInputDialog*>(&box) != nullptr;
            if (!closed && (inShuffle ? !question : question)) {
                close();
            }
        });
        QTimer::singleShot(0, desk.form.get(), [&] {
            QTimer::singleShot(0, desk.form.get(), [&] {
                desk.shuffle();
                if (!closed) {
                    desk.puzzle().Undo();
                    desk.solve();
                }
            });
            desk.form->exec();
            desk.form.reset();
            QApplication::exit();
        });
        QApplication::exec();
        QVERIFY(closed && !desk.form);
        QVERIFY(desk.design.Puzzel.ScoreName.isEmpty());
    }
};

KAART_TEST(PuzzelFormTest)
#include "PuzzelFormTest.moc"
