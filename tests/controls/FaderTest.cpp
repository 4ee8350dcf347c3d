#include "controls/Fader.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// A fader on which one value is one pixel: 115 pixels less the handle and its margins.
struct TestFader : Fader {
    TestFader() {
        resize(115, 23);
        setRange(0, 100);
    }
    QPoint middle() const { return handleRect().center(); }
};

} // namespace

class FaderTest : public QObject {
    Q_OBJECT

    using Ticks = Rows<int, int, qint64>;

private slots:
    void ClickBringsTheHandleThere() {
        // The ends, the middle, and just inside the ends.
        for (const auto& [x, value] : {std::pair(0, 0), {8, 1}, {57, 50}, {106, 99}, {114, 100}}) {
            TestFader fader;
            fader.setValue(value < 50 ? 80 : 20);
            QTest::mouseClick(&fader, Qt::LeftButton, {}, QPoint(x, 10));
            QCOMPARE(fader.value(), value);
            QVERIFY(!fader.isSliderDown());
        }
    }

    void ClickOnTheHandleMovesNothing() {
        TestFader fader;
        fader.setValue(40);
        QSignalSpy changed(&fader, &Fader::valueChanged);
        QTest::mouseClick(&fader, Qt::LeftButton, {}, fader.handleRect().topLeft());
        QTest::mouseClick(&fader, Qt::LeftButton, {}, fader.handleRect().bottomRight());
        QCOMPARE(changed.size(), 0);
    }

    void DragFollowsTheMouseAndStopsAtTheEnds() {
        TestFader fader;
        fader.setValue(40);
        const QPoint taken = fader.middle() + QPoint(3, 2);
        QSignalSpy changed(&fader, &Fader::valueChanged);
        QTest::mousePress(&fader, Qt::LeftButton, {}, taken);
        for (const int step : {1, 20, 500, -500, -7}) {
            QTest::mouseMove(&fader, taken + QPoint(step, 0));
        }
        QTest::mouseRelease(&fader, Qt::LeftButton, {}, taken - QPoint(7, 0));
        QTest::mouseMove(&fader, taken);
        QList<int> values;
        for (const QVariantList& signal : changed) {
            values << signal.value(0).toInt();
        }
        QCOMPARE(values, (QList<int>{41, 60, 100, 0, 33}));
    }

    void UntrackedFaderTellsItsValueOnlyAtTheEnd() {
        TestFader fader;
        fader.setTracking(false);
        QSignalSpy changed(&fader, &Fader::valueChanged);
        QTest::mousePress(&fader, Qt::LeftButton, {}, fader.middle());
        QTest::mouseMove(&fader, fader.middle() + QPoint(30, 0));
        QCOMPARE(changed.size(), 0);
        QTest::mouseRelease(&fader, Qt::LeftButton, {}, fader.middle());
        QCOMPARE(fader.value(), 30);
    }

    void KeysStep() {
        for (const auto& [key, value] : {std::pair(Qt::Key_Right, 51),
                                         {Qt::Key_Left, 49},
                                         {Qt::Key_PageUp, 60},
                                         {Qt::Key_Home, 0},
                                         {Qt::Key_End, 100}}) {
            TestFader fader;
            fader.setValue(50);
            QTest::keyClick(&fader, key);
            QCOMPARE(fader.value(), value);
        }
    }

    void NothingMovesADisabledOrEmptyFader() {
        TestFader disabled;
        disabled.setEnabled(false);
        TestFader empty;
        empty.setRange(7, 7);
        TestFader byRightButton;
        QTest::mouseClick(&disabled, Qt::LeftButton, {}, QPoint(60, 10));
        QTest::mouseClick(&byRightButton, Qt::RightButton, {}, QPoint(60, 10));
        QTest::mouseClick(&empty, Qt::LeftButton, {}, QPoint(110, 10));
        QTest::keyClick(&empty, Qt::Key_End);
        QCOMPARE(disabled.value(), 0);
        QCOMPARE(byRightButton.value(), 0);
        QCOMPARE(empty.value(), 7);
    }

    void HandleStaysInsideAtEverySize() {
        TestFader fader;
        fader.setValue(100);
        for (const QSize size : {QSize(115, 23), QSize(400, 60), QSize(60, 16), QSize(20, 12)}) {
            fader.resize(size);
            QVERIFY(fader.rect().contains(fader.handleRect()));
            QVERIFY(!fader.grab().isNull());
        }
        fader.resize(1, 1);
        QVERIFY(!fader.grab().isNull());
    }

    void TickMarksKeepTheirDistance_data() {
        const Ticks row;
        row("every value fits", 1, 17, 1);
        row("just one too many", 1, 18, 2);
        row("colour", 0, 255, 20);
        row("one value", 5, 5, 1);
        row("widest range", -2147483647, 2147483647, 500000000);
    }
    void TickMarksKeepTheirDistance() {
        const auto [minimum, maximum, step] = Ticks::now();
        TestFader fader;
        fader.setRange(minimum, maximum);
        QCOMPARE(fader.tickStep(), step);
    }
};

KAART_TEST(FaderTest)
#include "FaderTest.moc"
