#include "controls/Mnemonics.h"
#include "controls/VistaButton.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

class MnemonicsTest : public QObject {
    Q_OBJECT

    using Captions = Rows<QStringList, QString>;

private slots:
    void EachCaptionHasTheLetterThatIsExpected_data() {
        const Captions row;
        row("first letters, else others", {"Bestand", "Bewerken", "Orientatie", "Omklappen"},
            "&Bestand|B&ewerken|&Orientatie|O&mklappen");
        row("later words come before what is within a word",
            {"Flip Horizontaal", "Flip Vertikaal", "1 Pixels"},
            "&Flip Horizontaal|Flip &Vertikaal|&1 Pixels");
        row("one makes room for another", {"AB", "A"}, "A&B|&A");
        row("no more letters than there are", {"A", "Ä", "a!"}, "&A|Ä|a!");
        row("alike", {"Plaatsen", "Plaatsen"}, "&Plaatsen|&Plaatsen");
        row("nothing to give", {"", "-"}, "|-");
    }
    void EachCaptionHasTheLetterThatIsExpected() {
        auto [captions, lettered] = Captions::now();
        const QList<QChar> letters = mnemonicsFor(captions);
        for (qsizetype i = 0; i < captions.size(); ++i) {
            captions[i] = withMnemonic(captions[i], letters[i]);
        }
        QCOMPARE(captions.join('|'), lettered);
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
