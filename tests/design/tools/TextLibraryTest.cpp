#include "design/tools/TextLibrary.h"

#include "tests/support/Test.h"

using namespace kaart;

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

class TextLibraryTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    const ProgramFolders folders_{folder_.path(), folder_.path()};

private slots:
    void AShorterTextLeavesNoTailAndACommaBreaksALine() {
        const QString name = "Café";
        QVERIFY(BewaarTekst(folders_, name, {"Een heel lange regel", QString()}));
        QCOMPARE(bytesOf(*textPath(folders_, name)), QByteArray("Een heel lange regel\r\n\r\n"));
        QVERIFY(BewaarTekst(folders_, name, {"één, € Ω", "\"b\","}));
        QCOMPARE(bytesOf(*textPath(folders_, name)), QByteArray("\xE9\xE9n, \x80 ?\r\n\"b\",\r\n"));
        QCOMPARE(LaadTekst(folders_, name + ".txt"), "één\r\n € ?\r\n\"b\"\r\n\r\n");
    }

    void RefusedNamesAreAFailureAndLeaveNothing() {
        const QStringList before = QDir(folder_.path()).entryList(QDir::AllEntries);
        for (const QString& name : QStringList{"", "../buiten", "a\\b", QString(QChar(0)),
                                               QString(300, QLatin1Char('n'))}) {
            QVERIFY2(!BewaarTekst(folders_, name, {"x"}), qPrintable(name));
        }
        QCOMPARE(QDir(folder_.path()).entryList(QDir::AllEntries), before);
        QVERIFY(!LaadTekst(folders_, "er niet.txt"));
    }

    void TheTextsThatComeAlongSurviveASave() {
        const QString data = qEnvironmentVariable("KAART_SOURCE") + "/data";
        const ProgramFolders bundled{data, data};
        QVERIFY(textFileNames(bundled).size() >= 4);
        for (const QString& file : textFileNames(bundled)) {
            const QString text = LaadTekst(bundled, file).value_or(QString());
            QStringList lines = text.split("\r\n");
            lines.removeLast();
            QVERIFY(BewaarTekst(folders_, file.chopped(4), lines));
            QCOMPARE(bytesOf(folders_.in("Data/") + file), bytesOf(data + "/Data/" + file));
        }
    }
};

KAART_TEST(TextLibraryTest)
#include "TextLibraryTest.moc"
