#include "design/session/Algemeen.h"
#include "design/session/ProgramFolders.h"
#include "design/session/SettingsFile.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

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

    using Damage = Rows<QByteArray, bool>;

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
        const Damage row;
        row("empty", "", false);
        row("two records", "\"a\"\r\n\"b\"\r\n", false);
        row("three numbers", "\"a\"\r\n\"b\"\r\n1,2,3\r\n", false);
        row("five numbers", "\"a\"\r\n\"b\"\r\n1,2,3,4,5\r\n", false);
        row("a word", "\"a\"\r\n\"b\"\r\n1,2,drie,4\r\n", false);
        row("no number", "\"a\"\r\n\"b\"\r\n1,2,nan,inf\r\n", false);
        row("odd bytes", QByteArray("\x81\xff\0\n\n\x90,,,\n", 10), false);
        row("other makers, LF only", "x\ny\n1, 2 ,3,4", true);
        row("more records", "x\r\ny\r\n1,2,3,4\r\nz\r\n", true);
    }
    void DamagedFilesGiveNoMargins() {
        const auto [bytes, good] = Damage::now();
        const QTemporaryDir folder;
        write(folder.filePath("Kaartwerkje.ini"), bytes);
        QCOMPARE(readSettings(folder.filePath("Kaartwerkje.ini")).has_value(), good);
        QVERIFY(!readSettings(folder.filePath("niets.ini")).has_value());
    }

    void SeedingGivesEveryFileOnceAndOverwritesNothing() {
        const QTemporaryDir folder;
        const QString from = folder.filePath("van");
        const QString to = folder.filePath("naar");
        write(from + "/Data/Gedicht.txt", "nieuw");
        write(from + "/Data/map/Ander.txt", "ander");
        QFile::setPermissions(from + "/Data/map/Ander.txt", QFile::ReadOwner);
        write(from + "/Data/Help.pdf", "oud");
        write(to + "/Data/Gedicht.txt", "van de gebruiker");
        seedFolders(from, to);
        QCOMPARE(read(to + "/Data/Gedicht.txt"), QByteArray("van de gebruiker"));
        QCOMPARE(read(to + "/Data/map/Ander.txt"), QByteArray("ander"));
        QVERIFY(QFile::permissions(to + "/Data/map/Ander.txt") & QFile::WriteOwner);
        QVERIFY(QFileInfo(to + "/Ontwerpen").isDir());

        // The user clears up, and a new version has one more and another manual.
        write(from + "/Data/Help.pdf", "nieuw");
        QVERIFY(QFile::remove(to + "/Data/Gedicht.txt"));
        QVERIFY(QFile::remove(to + "/Data/map/Ander.txt"));
        write(from + "/Lijsten/Lijst-009.fra", "rand");
        seedFolders(from, to);
        QVERIFY(!QFile::exists(to + "/Data/Gedicht.txt"));
        QVERIFY(!QFile::exists(to + "/Data/map/Ander.txt"));
        QCOMPARE(read(to + "/Lijsten/Lijst-009.fra"), QByteArray("rand"));
        QCOMPARE(read(to + "/Data/Help.pdf"), QByteArray("nieuw"));
        seedFolders(folder.filePath("nergens"), to);
    }

    void AnInstalledProgramWorksInTheUsersFolder() {
        const QTemporaryDir folder;
        write(folder.filePath("usr/share/kaartwerkje/Data/Gedicht.txt"), "nieuw");
        QDir().mkpath(folder.filePath("usr/bin"));
        qputenv("XDG_DATA_HOME", folder.filePath("thuis").toLocal8Bit());
        const ProgramFolders installed = findProgramFolders(folder.filePath("usr/bin"));
        QVERIFY(installed.program.startsWith(folder.filePath("thuis/")));
        QCOMPARE(read(installed.in("Data/Gedicht.txt")), QByteArray("nieuw"));

        // With libraries of its own beside it, it is a portable one, whatever its neighbours are.
        QDir().mkpath(folder.filePath("usr/Kaartwerkje/Lijsten"));
        QCOMPARE(findProgramFolders(folder.filePath("usr/Kaartwerkje")).program,
                 folder.filePath("usr/Kaartwerkje"));
        qunsetenv("XDG_DATA_HOME");
    }

    void HexadecimalColoursHaveSixDigits() {
        QCOMPARE(HexKleur("60", "60", "60"), "3C3C3C");
        QCOMPARE(HexKleur("", "10", "255"), "000AFF");
    }
};

KAART_TEST(SettingsTest)
#include "SettingsTest.moc"
