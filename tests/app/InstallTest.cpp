#include "tests/support/Test.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

/// The installed program, as a user with an empty home folder starts it.
class InstallTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        const QStringList install{"--install", KAART_BUILD, "--component",
                                  "system",    "--prefix",  home_.filePath("usr")};
        QCOMPARE(QProcess::execute(KAART_CMAKE, install), 0);
        QVERIFY(QFile::exists(home_.filePath("usr/share/applications/"
                                             "nl.kaartwerkje.Kaartwerkje.desktop")));
    }

    void TheFirstStartSeedsTheUsersFolder() {
        start();
        for (const char* folder : {"Data", "Lijsten", "Frames", "Templates", "Achtergronden",
                                   "Maskers", "Stickers", "Vectors"}) {
            const QDir installed(home_.filePath("usr/share/kaartwerkje/" + QString(folder)));
            QVERIFY2(!installed.isEmpty(), folder);
            QCOMPARE(QDir(own(folder)).entryList(), installed.entryList());
        }
        QVERIFY(QFileInfo(own("Ontwerpen")).isDir());
        QCOMPARE(QDir(home_.filePath("usr/bin")).entryList(QDir::Files), {"kaartwerkje"});
    }

    void TheNextStartKeepsWhatTheUserDid() {
        QFile changed(own("Data/Verjaardag.txt"));
        QVERIFY(changed.open(QIODevice::WriteOnly));
        changed.write("van de gebruiker");
        changed.close();
        QVERIFY(QFile::remove(own("Lijsten/Lijst-002.fra")));
        start();
        QVERIFY(changed.open(QIODevice::ReadOnly));
        QCOMPARE(changed.readAll(), QByteArray("van de gebruiker"));
        QVERIFY(!QFile::exists(own("Lijsten/Lijst-002.fra")));
    }

private:
    QString own(const QString& name) const {
        return home_.filePath(".local/share/kaartwerkje/" + name);
    }

    /// Starts the program and ends it when its window is there, of which the settings file tells.
    void start() {
        QFile::remove(own("Kaartwerkje.ini"));
        QProcess program;
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert("HOME", home_.path());
        surroundings.remove("XDG_DATA_HOME");
        program.setProcessEnvironment(surroundings);
        program.start(home_.filePath("usr/bin/kaartwerkje"), QStringList());
        QVERIFY(program.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(own("Kaartwerkje.ini")), 20000);
        QCOMPARE(program.state(), QProcess::Running);
        program.terminate();
        QVERIFY(program.waitForFinished());
    }

    QTemporaryDir home_;
};

KAART_TEST(InstallTest)
#include "InstallTest.moc"
