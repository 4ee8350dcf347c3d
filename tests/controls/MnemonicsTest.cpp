#include "controls/Mnemonics.h"
#include "controls/VistaButton.h"
#include "tests/support/Test.h"

#include <QMenuBar>

using namespace kaart;

class MnemonicsTest : public QObject {
    Q_OBJECT

private slots:
    void EachCaptionHasTheLetterThatIsExpected_data() {
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QString>("lettered");
        QTest::newRow("first letters, else others")
            << QStringList{"Bestand", "Bewerken", "Orientatie", "Omklappen"}
            << "&Bestand|B&ewerken|&Orientatie|O&mklappen";
        QTest::newRow("later words come before what is within a word")
            << QStringList{"Flip Horizontaal", "Flip Vertikaal", "1 Pixels"}
            << "&Flip Horizontaal|Flip &Vertikaal|&1 Pixels";
        QTest::newRow("one makes room for another") << QStringList{"AB", "A"} << "A&B|&A";
        QTest::newRow("no more letters than there are") << QStringList{"A", "Ä", "a!"} << "&A|Ä|a!";
        QTest::newRow("alike") << QStringList{"Plaatsen", "Plaatsen"} << "&Plaatsen|&Plaatsen";
        QTest::newRow("nothing to give") << QStringList{"", "-"} << "|-";
    }
    void EachCaptionHasTheLetterThatIsExpected() {
        QFETCH(QStringList, captions);
        const QList<QChar> letters = mnemonicsFor(captions);
        for (qsizetype i = 0; i < captions.size(); ++i) {
            captions[i] = withMnemonic(captions[i], letters[i]);
        }
        QTEST(captions.join('|'), "lettered");
    }

    void ButtonsTakeWhatTheMenuBarLeaves() {
        QWidget window;
        QMenuBar bar(&window);
        bar.addAction("Annuleren");
        VistaButton button(&window);
        button.setText("Annuleren");
        button.setToolTip(" Sluit ");
        button.tellKeys("Esc");
        giveMnemonics(button);
        QCOMPARE(bar.actions().first()->text(), "&Annuleren");
        QCOMPARE(button.text(), "Annuleren");
        QCOMPARE(button.toolTip(), " Sluit ");
        QCOMPARE(button.toolTipWithKeys(), " Sluit (Alt+N of Esc) ");
        window.show();
        QApplication::setActiveWindow(&window);
        QSignalSpy clicked(&button, &VistaButton::clicked);
        QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(clicked.size(), 1);
    }
};

KAART_TEST(MnemonicsTest)
#include "MnemonicsTest.moc"
