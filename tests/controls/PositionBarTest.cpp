#include "controls/PositionBar.h"
#include "tests/support/Test.h"

#include <QWheelEvent>

using namespace kaart;

class PositionBarTest : public QObject {
    Q_OBJECT

private slots:
    void KeysAndWheelGoTheWayOfTheContent_data() {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::Key>("on");
        QTest::addColumn<Qt::Key>("back");
        QTest::newRow("lying") << Qt::Horizontal << Qt::Key_Right << Qt::Key_Left;
        QTest::newRow("upright") << Qt::Vertical << Qt::Key_Down << Qt::Key_Up;
    }
    void KeysAndWheelGoTheWayOfTheContent() {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::Key, on);
        QFETCH(Qt::Key, back);
        QScrollBar bar;
        makePositionBar(bar, orientation, 1, 90);
        bar.show();
        QTest::keyClick(&bar, on);
        QTest::keyClick(&bar, on);
        QCOMPARE(bar.value(), 3);
        QTest::keyClick(&bar, back);
        QCOMPARE(bar.value(), 2);
        QWheelEvent down({1, 1}, {1, 1}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&bar, &down);
        QVERIFY(bar.value() > 2);
    }
};

KAART_TEST(PositionBarTest)
#include "PositionBarTest.moc"
