#include "pictures/SheetBuilder.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThreadPool>

using namespace kaart;

namespace {

/// Red above, blue below.
QImage flag(int width, int height) {
    PixelSurface picture(width, height, RGB(0, 0, 255));
    picture.Line(0, 0, width - 1, height / 2.0 - 1, RGB(255, 0, 0), LineMode::FilledBox);
    return picture.Image();
}

} // namespace

class SheetBuilderTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    SheetBuilder builder_;
    QList<PackedPicture> made_;
    QList<bool> readable_;
    int finished_ = 0;

    QString file(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    void build(const QStringList& names) {
        QStringList paths;
        for (const QString& name : names) {
            paths << folder_.filePath(name);
        }
        made_.clear();
        readable_.clear();
        finished_ = 0;
        builder_.start(paths);
    }
    QImage thumbnail(int index) const { return made_.value(index).unpack(); }

private slots:
    void initTestCase() {
        QVERIFY(SavePicture(flag(300, 200), file("wide.bmp")));
        QVERIFY(SavePicture(flag(20, 20), file("tiny.bmp")));
        QVERIFY(saveJpeg(flag(1200, 1800), file("high.jpg"), 95));
        QFile high(file("high.jpg"));
        QVERIFY(high.open(QIODevice::ReadOnly));
        QByteArray bytes = high.readAll();
        const auto write = [this](const char* name, const QByteArray& content) {
            QFile out(file(name));
            QVERIFY(out.open(QIODevice::WriteOnly) && out.write(content) == content.size());
        };
        write("cut off.jpg", bytes.chopped(bytes.size() / 2));
        // The frame header promises 32,767 x 32,767 pixels.
        const qsizetype frame = bytes.indexOf("\xFF\xC0");
        write("boaster.jpg", QByteArray(bytes).replace(frame + 5, 4, "\x7F\xFF\x7F\xFF"));
        connect(&builder_, &SheetBuilder::thumbnailMade, this,
                [this](int index, const PackedPicture& thumbnail, bool readable) {
                    QCOMPARE(index, made_.size());
                    made_ << thumbnail;
                    readable_ << readable;
                });
        connect(&builder_, &SheetBuilder::finished, this, [this] { ++finished_; });
    }

    void ThumbnailsAreStretchedByTheShapeOfThePicture() {
        build({"wide.bmp", "high.jpg", "tiny.bmp"});
        QTRY_COMPARE(finished_, 1);
        comparePictures(thumbnail(0), flag(90, 66));
        QCOMPARE(thumbnail(1).size(), QSize(66, 90));
        comparePictures(thumbnail(2), flag(80, 80));
    }

    void HostileFilesShowTheFormerPicture() {
        build({"tiny.bmp", "cut off.jpg", "wide.bmp", "boaster.jpg", "nowhere.jpg"});
        QTRY_COMPARE(finished_, 1);
        QCOMPARE(readable_, QList<bool>({true, false, true, false, false}));
        comparePictures(thumbnail(1), thumbnail(0));
        comparePictures(thumbnail(4), flag(90, 66));
        build({"boaster.jpg"}); // the former one of the former folder
        QTRY_COMPARE(finished_, 1);
        comparePictures(thumbnail(0), flag(90, 66));
    }

    void ANewRowEndsTheOldOneAtOnce() {
        QStringList many;
        many.fill(QStringLiteral("high.jpg"), 500);
        build(many);
        QTRY_VERIFY(made_.size() >= 2);
        build({"tiny.bmp", "wide.bmp"});
        QTRY_COMPARE(finished_, 1);
        QCOMPARE(made_.size(), 2);
        comparePictures(thumbnail(0), flag(80, 80));
        build(many);
        builder_.stop();
        build({});
        QCOMPARE(finished_, 1);
        auto passing = std::make_unique<SheetBuilder>();
        passing->start({file("high.jpg"), file("high.jpg")});
        passing.reset(); // while its thread reads
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(made_.isEmpty());
        QCOMPARE(finished_, 1);
    }

    void PhotosTakeLittleRoomAndDrawingsKeepEveryPixel() {
        std::mt19937 random(5);
        const QImage drawing = randomPicture(12, 9, random);
        comparePictures(PackedPicture(drawing).unpack(), drawing);
        const QImage noise = randomPicture(90, 66, random);
        const PackedPicture photo(noise);
        QCOMPARE(photo.unpack().size(), noise.size());
        QVERIFY(photo.bytes() < 12000); // half of the pixels' own
        QVERIFY(PackedPicture().unpack().isNull());
    }
};

KAART_TEST(SheetBuilderTest)
#include "SheetBuilderTest.moc"
