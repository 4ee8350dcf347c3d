#include "design/tools/CanvasCommands.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

class CanvasCommandsTest : public QObject {
    Q_OBJECT

private slots:
    void TheEdgeGetsOneRingMoreThanItsIndex() {
        Design design({});
        design.Tekenkleur = colourOf('2');
        design.setDrawWidth(1);
        ToolsRanden(design, 1);
        const QImage pic = design.Pic().Image();
        QCOMPARE(spell(pic.copy(0, 0, 4, 4)), QStringList({"2222", "2222", "2200", "2200"}));
        QCOMPARE(spell(pic.copy(436, 636, 4, 4)), QStringList({"0022", "0022", "2222", "2222"}));
        QVERIFY(design.Gewijzigd);
        QCOMPARE(design.UndoPic().Point(0, 0), white);
        ToolsRanden(design, 0);
        QCOMPARE(design.UndoPic().Point(0, 0), colourOf('2'));
    }

    void TheScreenIsToldInDotsOf15Twips() {
        const QString told = "Schermresolutie... : %1 Dpi (Dots / Inch)\r\n"
                             "Schermgrootte..... : %2 x %3 Pixels\r\n---";
        QVERIFY(screenInfo(96, {1920, 1080}).startsWith(told.arg(96).arg(1920).arg(1080)));
        QVERIFY(screenInfo(144, {1920, 1080}).startsWith(told.arg(144).arg(1280).arg(720)));
    }
};

KAART_TEST(CanvasCommandsTest)
#include "CanvasCommandsTest.moc"
