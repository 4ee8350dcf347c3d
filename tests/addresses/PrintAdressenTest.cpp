#include "addresses/PrintAdressen.h"
#include "design/surface/RecordingPrinter.h"
#include "tests/support/Test.h"

using namespace kaart;

class PrintAdressenTest : public QObject {
    Q_OBJECT

    static QStringList printed(int count) {
        Addresses addresses;
        for (int number = 1; number <= count; ++number) {
            addresses << QStringList{QString::number(number), "b", "c", "d", "e", "f", "g", "-"};
        }
        RecordingPrinter printer;
        PrintAdressen(printer, addresses, QDateTime(QDate(2026, 3, 5), QTime(14, 7, 9)));
        return printer.Log;
    }

    /// What a row of the table prints, in a font and colour.
    static QStringList line(int y, const QString& style, const QStringList& texts) {
        const int columns[] = {300, 2700, 5100, 6300, 8400, 10050, 12500, 14100};
        QStringList log;
        for (int column = 0; column < texts.size(); ++column) {
            log << QString("Print %1 %2 Arial %3 ").arg(columns[column]).arg(y).arg(style) +
                       texts[column];
        }
        return log;
    }
    const QStringList heading_ = line(900, "9 bold 1E0000",
                                      {"Naam", "Adres", "Postcode", "Plaatsnaam", "Telefoon",
                                       "E-mail", "Land", "Opmerking"}) +
                                 line(1140, "9 bold 1E0000", {QString(268, '-')});

private slots:
    void FirstSheetHasTitleStampHeadingAndRows() {
        const QStringList title{"Sheet 2", "Print 300 300 Arial 14 bold 00005A Adressenlijst",
                                "Print 13650 300 Arial 14 bold 5A0000 14:07:09 / 05-03-2026"};
        const QStringList row = line(1380, "9 3C3C3C", {"1", "b", "c", "d", "e", "f", "g", "-"});
        QCOMPARE(printed(1), title + heading_ + row + QStringList("EndDoc"));
        QCOMPARE(printed(0), QStringList());
    }

    void SheetTurnsAfterFortyRows() {
        const QStringList turn = QStringList{"NewPage", "Sheet 2"} + heading_;
        const QStringList full = printed(40);
        QCOMPARE(full.mid(full.indexOf("NewPage")), turn + QStringList("EndDoc"));
        QVERIFY(!printed(39).contains("NewPage"));
        const QStringList more = printed(81);
        QVERIFY(more.contains("Print 300 10740 Arial 9 3C3C3C 40"));
        QVERIFY(more.contains("Print 300 1320 Arial 9 3C3C3C 41"));
        QVERIFY(more.contains("Print 300 10680 Arial 9 3C3C3C 80"));
        QCOMPARE(more.mid(more.lastIndexOf("NewPage"), turn.size()), turn);
        QVERIFY(more.contains("Print 300 1320 Arial 9 3C3C3C 81"));
    }
};

KAART_TEST(PrintAdressenTest)
#include "PrintAdressenTest.moc"
