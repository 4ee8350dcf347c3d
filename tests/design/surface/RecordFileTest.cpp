#include "design/surface/RecordFile.h"
#include "design/surface/TextFile.h"
#include "design/surface/WholeFile.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

class RecordFileTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    QString path() const { return folder_.filePath("Data/lijst.col"); }
    /// Two fields a record, told as "a,b|c,d".
    QString read(TornRecord torn) const {
        QStringList told;
        for (const QStringList& record : readRecords(path(), 2, torn)) {
            told << record.join(',');
        }
        return told.join('|');
    }

    using Lines = Rows<QByteArray, QString, QString>; // with the torn record dropped, and kept

private slots:
    void WrittenFileHasTheseBytes() {
        QVERIFY(writeRecords(path(), {{" \tJan  é ", " b "}, {"Piet\r\nJr", "x\ny\rЖ"}}));
        const QByteArray line = QByteArray(28, '-') + "\r\n";
        const QByteArray head = "Brelmo Software \xAE 2015\r\n" + line;
        QCOMPARE(readWholeFile(path(), 1000),
                 head + "\tJan  \xE9\r\n b \r\n" + line + "Piet Jr\r\nx y ?\r\n" + line);
        QVERIFY(writeRecords(path(), {}));
        QCOMPARE(readWholeFile(path(), 1000), head);
    }

    void LinesGoByTheirPosition_data() {
        const Lines row;
        const auto same = [&row](const char* name, const QByteArray& bytes, const char* records) {
            row(name, bytes, QLatin1String(records), QLatin1String(records));
        };
        same("nothing", "", "");
        same("banner only", "x\r\n", "");
        same("no records", "x\r\n-\r\n", "");
        same("as written", "x\r\n-\r\na\r\nb\r\n-\r\nc\r\n\r\n-\r\n", "a,b|c,");
        same("other words in place", "\r\n\r\na\r\nb\r\nc\r\nd\r\ne\r\n", "a,b|d,e");
        same("no separator at the end", "x\r\n-\r\na\r\nb", "a,b");
        same("line feeds", "x\n-\na\nb\n-\nc\nd\n-\n", "a,b|c,d");
        same("blank name", "x\r\n-\r\n  \r\nb\r\n-\r\nc\r\nd\r\n-\r\n", "c,d");
        same("a tab is a name", "x\r\n-\r\n\t\r\nb\r\n-\r\n", "\t,b");
        same("blanks stay on reading", "x\r\n-\r\n a \r\n b\r\n-\r\n", " a , b");
        row("torn", "x\r\n-\r\na\r\nb\r\n-\r\nc\r\n", "a,b", "a,b|c,");
        row("torn within a line end", "x\r\n-\r\nc\r", "", "c,");
        same("all separator", QByteArray(40, '\n'), "");
        same("odd bytes", QByteArray("\0\r\n\xFF\r\n\x81\r\n\xFE\x1A\r\n", 11), "\x81,\xFE\x1A");
    }
    void LinesGoByTheirPosition() {
        const auto [bytes, dropped, kept] = Lines::now();
        QVERIFY(writeRecords(path(), {}) && writeWholeFile(path(), bytes));
        QCOMPARE(read(TornRecord::Dropped), dropped);
        QCOMPARE(read(TornRecord::Kept), kept);
    }

    void FileThatCannotBeReadHasNoRecords() {
        QCOMPARE(readRecords(folder_.filePath("geen.col"), 2, TornRecord::Kept).size(), 0);
        QCOMPARE(readRecords(folder_.path(), 2, TornRecord::Kept).size(), 0);
        QVERIFY(!writeRecords(folder_.path(), {}));
    }
};

KAART_TEST(RecordFileTest)
#include "RecordFileTest.moc"
