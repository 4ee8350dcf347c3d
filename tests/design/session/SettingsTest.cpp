#include "design/session/Algemeen.h"
#include "design/session/ProgramFolders.h"
#include "design/session/SettingsFile.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QTemporaryDir>

using namespace kaart;

namespace {

void write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class SettingsTest : public QObject {
    Q_OBJECT

private slots:
    void TheFileHasItsThreeRecords() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("Kaartwerkje.ini");
        QVERIFY(writeSettings(path, {-12, 3.5, 0, 99}));
        QCOMPARE(read(path), QByteArray("\"Brelmo Software 2015\"\r\n"
                                        "\"--------------------------\"\r\n-12,3.5,0,99\r\n"));
        const auto margins = readSettings(path);
        QVERIFY(margins.has_value());
        QCOMPARE(margins->left, -12.0);
        QCOMPARE(margins->top, 3.5);
        QCOMPARE(margins->bottom, 99);
        QVERIFY(!writeSettings(folder.filePath("nergens/Kaartwerkje.ini"), {}));
    }

    void DamagedFilesGiveNoMargins_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("good");
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("two records") << QByteArray("\"a\"\r\n\"b\"\r\n") << false;
        QTest::newRow("three numbers") << QByteArray("\"a\"\r\n\"b\"\r\n1,2,3\r\n") << false;
        QTest::newRow("five numbers") << QByteArray("\"a\"\r\n\"b\"\r\n1,2,3,4,5\r\n") << false;
        QTest::newRow("a word") << QByteArray("\"a\"\r\n\"b\"\r\n1,2,drie,4\r\n") << false;
        QTest::newRow("no number") << QByteArray("\"a\"\r\n\"b\"\r\n1,2,nan,inf\r\n") << false;
        QTest::newRow("odd bytes") << QByteArray("\x81\xff\0\n\n\x90,,,\n", 10) << false;
        QTest::newRow("other makers, LF only") << QByteArray("x\ny\n1, 2 ,3,4") << true;
        QTest::newRow("more records") << QByteArray("x\r\ny\r\n1,2,3,4\r\nz\r\n") << true;
    }
    void DamagedFilesGiveNoMargins() {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, good);
        const QTemporaryDir folder;
        write(folder.filePath("Kaartwerkje.ini"), bytes);
        QCOMPARE(readSettings(folder.filePath("Kaartwerkje.ini")).has_value(), good);
        QVERIFY(!readSettings(folder.filePath("niets.ini")).has_value());
    }

    void SeedingAddsWhatIsMissingAndOverwritesNothing() {
        const QTemporaryDir folder;
        write(folder.filePath("van/Data/Gedicht.txt"), "nieuw");
        write(folder.filePath("van/Data/Ander.txt"), "ander");
        write(folder.filePath("naar/Data/Gedicht.txt"), "van de gebruiker");
        seedFolder(folder.filePath("van"), folder.filePath("naar"));
        QCOMPARE(read(folder.filePath("naar/Data/Gedicht.txt")), QByteArray("van de gebruiker"));
        QCOMPARE(read(folder.filePath("naar/Data/Ander.txt")), QByteArray("ander"));
        seedFolder(folder.filePath("nergens"), folder.filePath("naar"));
    }

    void HexadecimalColoursHaveSixDigits() {
        QCOMPARE(HexKleur("60", "60", "60"), QStringLiteral("3C3C3C"));
        QCOMPARE(HexKleur("", "10", "255"), QStringLiteral("000AFF"));
    }
};

KAART_TEST(SettingsTest)
#include "SettingsTest.moc"
