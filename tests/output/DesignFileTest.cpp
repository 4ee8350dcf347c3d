#include "output/DesignFile.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

using namespace kaart;

namespace {

/// While it lives no file can grow beyond so many bytes, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int);
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void touch(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class DesignFileTest : public QObject {
    Q_OBJECT

    QTemporaryDir root_;
    DesignFolders folders_;
    QImage design_;

    QStringList allFiles() const {
        QStringList names;
        QDirIterator found(root_.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (found.hasNext()) {
            names << QDir(root_.path()).relativeFilePath(found.next());
        }
        names.sort();
        return names;
    }

    bool saveOnFullDisk() const {
        const FullDisk full(1000);
        return saveDesign(folders_, "Feest", design_);
    }

private slots:
    void init() {
        QDir(root_.path()).removeRecursively();
        folders_ = {root_.filePath("program"), root_.filePath("pictures")};
        QVERIFY(QDir().mkpath(folders_.program));
        QVERIFY(QDir().mkpath(folders_.pictures));
        std::mt19937 random(7);
        design_ = randomPicture(640, 440, random);
    }

    void SavedDesignIsABmpWithAJpegCopyAndNothingElse() {
        QVERIFY(saveDesign(folders_, " Feest é", design_));
        QCOMPARE(allFiles(),
                 QStringList({"pictures/ Feest é.jpg", "program/Ontwerpen/ Feest é.bmp"}));
        comparePictures(*LoadPicture(designPath(folders_, " Feest é")), design_);
        const QByteArray bytes = contentOf(designPath(folders_, " Feest é"));
        QCOMPARE(bytes.left(2), QByteArray("BM"));
        QCOMPARE(bytes.size(), 54 + 640 * 440 * 3);
        QCOMPARE(pictureSize(jpegCopyPath(folders_, " Feest é")), QSize(640, 440));
    }

    void RefusedNameWritesNothingAndIsNotNoticed_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("slash") << "a/b";
        QTest::newRow("way out") << "../../weg";
        QTest::newRow("back slash") << "..\\weg";
        QTest::newRow("zero") << QString(QChar(0)) + 'x';
        QTest::newRow("too long") << QString(300, QLatin1Char('x'));
    }
    void RefusedNameWritesNothingAndIsNotNoticed() {
        QFETCH(QString, name);
        QVERIFY(QDir().mkpath(folders_.program + "/Ontwerpen/a"));
        QVERIFY(QDir().mkpath(folders_.pictures + "/a"));
        QVERIFY(saveDesign(folders_, name, design_));
        QCOMPARE(allFiles(), QStringList());
    }

    void OnlyTheScratchFileTellsOfAFolderThatCannotBeWritten() {
        touch(folders_.program + "/Ontwerpen");
        QVERIFY(saveDesign(folders_, "Feest", design_));
        QCOMPARE(allFiles(), QStringList({"pictures/Feest.jpg", "program/Ontwerpen"}));
        folders_.program += "/nergens";
        QVERIFY(!saveDesign(folders_, "Feest", design_));
    }

    void MissingPicturesFolderIsNotNoticed() {
        for (const QString& pictures : {QString(), root_.filePath("weg")}) {
            folders_.pictures = pictures;
            QVERIFY(saveDesign(folders_, "Feest", design_));
            QCOMPARE(allFiles(), QStringList("program/Ontwerpen/Feest.bmp"));
        }
    }

    void FullDiskLeavesTheOldDesignWhole() {
        QVERIFY(saveDesign(folders_, "Feest", design_));
        const QStringList files = allFiles();
        const QByteArray before = contentOf(designPath(folders_, "Feest"));
        const QByteArray copyBefore = contentOf(jpegCopyPath(folders_, "Feest"));
        design_.fill(Qt::red);
        QVERIFY(!saveOnFullDisk());
        QCOMPARE(allFiles(), files);
        QVERIFY(contentOf(designPath(folders_, "Feest")) == before);
        QVERIFY(contentOf(jpegCopyPath(folders_, "Feest")) == copyBefore);
    }

    void StaleScratchFileDoesNotPassForASave() {
        touch(folders_.program + "/mydummy.bmp");
        QVERIFY(!saveOnFullDisk());
        // A folder of that name is no scratch file either.
        QVERIFY(QDir(folders_.program).mkpath("mydummy.bmp/vol"));
        QVERIFY(!saveDesign(folders_, "Feest", design_));
    }

    void DesignsAreListedWithoutRegardToCase() {
        QCOMPARE(designFileNames(folders_), QStringList());
        QVERIFY(QDir(folders_.program).mkpath("Ontwerpen/map.bmp"));
        for (const char* name : {"Zon.bmp", "appel.BMP", "Boom.bmp", ".punt.bmp", "foto.jpg"}) {
            touch(folders_.program + "/Ontwerpen/" + QLatin1String(name));
        }
        QCOMPARE(designFileNames(folders_).join(QLatin1Char(' ')),
                 ".punt.bmp appel.BMP Boom.bmp Zon.bmp");
    }
};

KAART_TEST(DesignFileTest)
#include "DesignFileTest.moc"
