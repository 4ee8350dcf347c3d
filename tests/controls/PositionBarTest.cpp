#include "controls/PositionBar.h"
#include "tests/support/Test.h"

using namespace kaart;

class PositionBarTest : public QObject {
    Q_OBJECT

private slots:
    void KeysAndWheelGoTheWayOfTheContent() {
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            const bool lying = orientation == Qt::Horizontal;
            QScrollBar bar;
            makePositionBar(bar, orientation, 1, 90);
            bar.show();
            QTest::keyClick(&bar, lying ? Qt::Key_Right : Qt::Key_Down);
            QTest::keyClick(&bar, lying ? Qt::Key_Right : Qt::Key_Down);
            QCOMPARE(bar.value(), 3);
            QTest::keyClick(&bar, lying ? Qt::Key_Left : Qt::Key_Up);
            QCOMPARE(bar.value(), 2);
            QWheelEvent down({1, 1}, {1, 1}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                             false);
            QApplication::sendEvent(&bar, &down);
            QVERIFY(bar.value() > 2);
        }
    }
};

KAART_TEST(PositionBarTest)
#include "PositionBarTest.moc"
