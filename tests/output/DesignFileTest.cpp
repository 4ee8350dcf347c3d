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
        QCOMPARE(allFiles(), QStringList({QStringLiteral("pictures/ Feest é.jpg"),
                                          QStringLiteral("program/Ontwerpen/ Feest é.bmp")}));
        const auto read = LoadPicture(designPath(folders_, " Feest é"));
        QVERIFY(read);
        comparePictures(*read, design_);
        const QByteArray bytes = contentOf(designPath(folders_, " Feest é"));
        QCOMPARE(bytes.left(2), QByteArray("BM"));
        QCOMPARE(bytes.size(), 54 + 640 * 440 * 3);
        QCOMPARE(pictureSize(jpegCopyPath(folders_, " Feest é")), QSize(640, 440));
    }

    void RefusedNameWritesNothingAndIsNotNoticed_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("slash") << QStringLiteral("a/b");
        QTest::newRow("way out") << QStringLiteral("../../weg");
        QTest::newRow("back slash") << QStringLiteral("..\\weg");
        QTest::newRow("zero") << QString(QChar(0)) + QStringLiteral("x");
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
        QCOMPARE(allFiles(), QStringList({QStringLiteral("pictures/Feest.jpg"),
                                          QStringLiteral("program/Ontwerpen")}));
        folders_.program += QStringLiteral("/nergens");
        QVERIFY(!saveDesign(folders_, "Feest", design_));
    }

    void MissingPicturesFolderIsNotNoticed() {
        for (const QString& pictures : {QString(), root_.filePath("weg")}) {
            folders_.pictures = pictures;
            QVERIFY(saveDesign(folders_, "Feest", design_));
            QCOMPARE(allFiles(), QStringList(QStringLiteral("program/Ontwerpen/Feest.bmp")));
        }
    }

    void FullDiskLeavesTheOldDesignWhole() {
        QVERIFY(saveDesign(folders_, "Feest", design_));
        const QStringList files = allFiles();
        const QByteArray before = contentOf(designPath(folders_, "Feest"));
        const QByteArray copyBefore = contentOf(jpegCopyPath(folders_, "Feest"));
        design_.fill(Qt::red);
        {
            const FullDisk full(1000);
            QVERIFY(!saveDesign(folders_, "Feest", design_));
        }
        QCOMPARE(allFiles(), files);
        QVERIFY(contentOf(designPath(folders_, "Feest")) == before);
        QVERIFY(contentOf(jpegCopyPath(folders_, "Feest")) == copyBefore);
    }

    void StaleScratchFileDoesNotPassForASave() {
        touch(folders_.program + "/mydummy.bmp");
        {
            const FullDisk full(1000);
            QVERIFY(!saveDesign(folders_, "Feest", design_));
        }
        // A folder of that name is no scratch file either.
        QVERIFY(QDir(folders_.program).mkpath("mydummy.bmp/vol"));
        QVERIFY(!saveDesign(folders_, "Feest", design_));
    }

    void DesignsAreListedWithoutRegardToCase() {
        QCOMPARE(designFileNames(folders_), QStringList());
        QVERIFY(QDir(folders_.program).mkpath("Ontwerpen/map.bmp"));
        for (const char* name : {"Zon.bmp", "appel.BMP", "Boom.bmp", ".punt.bmp", "foto.jpg"}) {
            touch(folders_.program + QStringLiteral("/Ontwerpen/") + QLatin1String(name));
        }
        QCOMPARE(designFileNames(folders_).join(QLatin1Char(' ')),
                 QStringLiteral(".punt.bmp appel.BMP Boom.bmp Zon.bmp"));
    }

    void SizeAloneMakesADesign_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("orientation");
        QTest::newRow("lying") << QSize(640, 440) << QStringLiteral("Liggend");
        QTest::newRow("upright") << QSize(440, 640) << QStringLiteral("Staand");
        QTest::newRow("strip") << QSize(1000, 80) << QStringLiteral("Liggend");
        QTest::newRow("square") << QSize(540, 540) << QStringLiteral("Staand");
        QTest::newRow("too high") << QSize(640, 441) << QString();
        QTest::newRow("half") << QSize(320, 220) << QString();
    }
    void SizeAloneMakesADesign() {
        QFETCH(QSize, size);
        QFETCH(QString, orientation);
        QCOMPARE(designOrientation(size).value_or(QString()), orientation);
    }
};

KAART_TEST(DesignFileTest)
#include "DesignFileTest.moc"
