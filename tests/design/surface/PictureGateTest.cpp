#include "design/surface/PictureGate.h"
#include "design/surface/TextFile.h"
#include "design/surface/WholeFile.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QBuffer>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>

#include <sys/stat.h>

using namespace kaart;

namespace {

QByteArray little(quint32 value, int bytes) {
    QByteArray result(4, '\0');
    qToLittleEndian(value, result.data());
    return result.left(bytes);
}

QByteArray big(quint32 value, int bytes) {
    QByteArray result(4, '\0');
    qToBigEndian(value, result.data());
    return result.right(bytes);
}

QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

QByteArray with(QByteArray bytes, qsizetype at, const QByteArray& patch) {
    return bytes.replace(at, patch.size(), patch);
}

// A BMP whose `table` (masks, palette, a longer header) stands between header and rows.
QByteArray bmp(int width, int height, int bits, quint32 compression, const QByteArray& table,
               const QByteArray& rows, quint32 headerBytes = 40) {
    const auto start = static_cast<quint32>(54 + table.size());
    return "BM" + little(start + static_cast<quint32>(rows.size()), 4) + little(0, 4) +
           little(start, 4) + little(headerBytes, 4) + little(static_cast<quint32>(width), 4) +
           little(static_cast<quint32>(height), 4) + little(1, 2) +
           little(static_cast<quint32>(bits), 2) + little(compression, 4) + little(0, 4) +
           little(11'811, 4) + little(11'811, 4) +
           little(headerBytes == 40 ? static_cast<quint32>(table.size() / 4) : 0, 4) +
           little(0, 4) + table + rows;
}

// A GIF of the colours white, black, red and (transparent) green, one digit a pixel. Codes stay
// 8 bits wide, for a clear code comes often enough.
QByteArray gif(int width, int height, const QByteArray& digits) {
    const QByteArray colours = hex("ffffff 000000 ff0000 00ff00") + QByteArray(372, '\0');
    QByteArray codes;
    for (const char digit : digits) {
        codes += hex("80") + static_cast<char>(digit - '0');
    }
    codes += '\x81';
    const QByteArray size =
        little(static_cast<quint32>(width), 2) + little(static_cast<quint32>(height), 2);
    return "GIF89a" + size + hex("e60000") + colours + hex("21f9040100000300") + "," +
           little(0, 4) + size + hex("0007") + little(static_cast<quint32>(codes.size()), 1) +
           codes + hex("003b");
}

QByteArray encoded(const QImage& picture, const char* format, bool progressive = false) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.write(picture);
    return buffer.data();
}

// Left half red, right half blue.
QImage halves() {
    return pictureOf({QStringLiteral("24")}).scaled(32, 16);
}

QByteArray jpeg(bool progressive = false) {
    return encoded(halves(), "jpeg", progressive);
}

const char palette[] = "ffffff00 00000000 0000ff00";

QByteArray segment(char marker, const QByteArray& content) {
    return '\xFF' + (marker + big(static_cast<quint32>(content.size() + 2), 2)) + content;
}

QByteArray turnedJpeg(int orientation) {
    const QByteArray exif =
        QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 24) +
        little(static_cast<quint32>(orientation), 4) + little(0, 4);
    return jpeg().insert(2, segment('\xE1', exif));
}

// A progressive JPEG that claims 9,000 x 9,000 pixels and goes over them so many times more.
QByteArray manyScans(int scans) {
    const QByteArray small = jpeg(true);
    const QByteArray scan = segment('\xDA', hex("010100000000"));
    return with(small, small.indexOf("\xFF\xC2") + 5, big(9'000, 2) + big(9'000, 2)).chopped(2) +
           scan.repeated(scans) + QByteArray(200'000, 'x') + "\xFF\xD9";
}

} // namespace

class PictureGateTest : public QObject {
    Q_OBJECT

    static bool isRed(const QImage& picture, int x, int y) {
        const QRgb pixel = picture.pixel(x, y);
        return qRed(pixel) > 200 && qBlue(pixel) < 60;
    }

    // Every file is a "bmp" by its name.
    QString path() const { return folder_.filePath(QStringLiteral("plaat@2x.bmp")); }

    std::optional<QImage> load(const QByteArray& bytes) const {
        QFile file(path());
        file.remove(); // a new file is much cheaper than an overwritten one
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        return LoadPicture(path());
    }

    QTemporaryDir folder_;

private slots:
    void initTestCase() {
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
    }

    void SavedBmpHasTheseBytes() {
        QVERIFY(SavePicture(pictureOf({QStringLiteral("20"), QStringLiteral("41")}), path()));
        const QByteArray expected = hex(
            "424d 46000000 00000000 36000000 28000000 02000000 02000000 0100 1800 00000000 10000000"
            "c40e0000 c40e0000 00000000 00000000 ff0000 000000 0000 0000ff ffffff 0000");
        QCOMPARE(readWholeFile(path(), 1'000)->toHex(' '), expected.toHex(' '));
    }

    void BmpComesBackAsItWas() {
        std::mt19937 random(7);
        for (const QSize size : {QSize(1, 1), QSize(3, 5), QSize(641, 7)}) {
            const QImage picture = randomPicture(size.width(), size.height(), random);
            QVERIFY(SavePicture(picture, path()));
            comparePictures(LoadPicture(path()).value_or(QImage()), picture);
            QCOMPARE(LoadPicture(path())->format(), QImage::Format_RGB32);
        }
    }

    void ReadsEveryKindOfFile_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray rows24 = hex("000000 ffffff 0000 0000ff 000000 0000");
        const QByteArray topDown = rows24.mid(8) + rows24.left(8);
        const QByteArray rows32 = hex("00000000 ffffff00 0000ff00 00000000");
        QTest::newRow("bmp 24") << bmp(2, 2, 24, 0, {}, rows24);
        QTest::newRow("bmp top-down") << bmp(2, -2, 24, 0, {}, topDown);
        QTest::newRow("bmp 4") << bmp(2, 2, 4, 0, hex(palette), hex("10000000 21000000"));
        QTest::newRow("bmp 8") << bmp(2, 2, 8, 0, hex(palette), hex("01000000 02010000"));
        QTest::newRow("bmp run-length 8")
            << bmp(2, 2, 8, 1, hex(palette), hex("0101 0100 0000 0102 0101 0001"));
        QTest::newRow("bmp 16") << bmp(2, 2, 16, 0, {}, hex("0000ff7f 007c0000"));
        QTest::newRow("bmp 16 with green of 6 bits")
            << bmp(2, 2, 16, 3, little(0xF800, 4) + little(0x07E0, 4) + little(0x1F, 4),
                   hex("0000ffff 00f80000"));
        QTest::newRow("bmp 32") << bmp(2, 2, 32, 0, {}, rows32);
        QTest::newRow("bmp 32 of empty opacity")
            << bmp(2, 2, 32, 3, hex("0000ff00 00ff0000 ff000000 000000ff") + QByteArray(52, '\0'),
                   rows32, 108);
        QTest::newRow("bmp of the old header")
            << "BM" + little(42, 4) + little(0, 4) + little(26, 4) + little(12, 4) + little(2, 2) +
                   little(2, 2) + little(1, 2) + little(24, 2) + rows24;
        QTest::newRow("gif") << gif(2, 2, "2113");
        QTest::newRow("gif of no canvas size") << with(gif(2, 2, "2113"), 6, little(0, 4));
        QImage clear = pictureOf({QStringLiteral("21"), QStringLiteral("10")})
                           .convertToFormat(QImage::Format_ARGB32);
        clear.setPixel(1, 1, 0x00FF0000);
        QTest::newRow("png") << encoded(clear, "png");
    }
    void ReadsEveryKindOfFile() {
        QFETCH(QByteArray, bytes);
        const auto picture = load(bytes);
        QVERIFY(picture);
        QCOMPARE(spell(*picture).join(QLatin1Char(',')), QStringLiteral("21,10"));
        QCOMPARE(pictureSize(path()), QSize(2, 2));
        QCOMPARE(picture->dotsPerMeterX(), 3780);
    }

    void ReadsJpegUnderAnyName() {
        const QByteArray fillers = segment('\xFE', "xx").repeated(900) + "\xFF\xFF";
        for (const QByteArray& bytes :
             {jpeg(), jpeg(true), jpeg() + "rest\xFF", jpeg().insert(2, fillers)}) {
            const auto picture = load(bytes);
            QVERIFY(picture);
            QCOMPARE(picture->size(), QSize(32, 16));
            QVERIFY(isRed(*picture, 3, 3) && !isRed(*picture, 28, 3));
        }
    }

    void CutFilesAreRefusedAndDamagedOnesHarmless_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("spare"); // bytes at the end that the picture can do without
        const QByteArray runs = hex("0401 0000 0003 01020000 0001");
        QTest::newRow("bmp") << bmp(5, 3, 24, 0, {}, QByteArray(48, 'x')) << 0;
        QTest::newRow("bmp runs") << bmp(4, 2, 8, 1, hex(palette), runs) << 0;
        QTest::newRow("gif") << gif(5, 3, "012012012012012") << 1;
        QTest::newRow("png") << encoded(halves(), "png") << 0;
        QTest::newRow("jpeg") << jpeg() << 0;
        QTest::newRow("progressive jpeg") << jpeg(true) << 0;
    }
    void CutFilesAreRefusedAndDamagedOnesHarmless() {
        QFETCH(QByteArray, bytes);
        QFETCH(int, spare);
        QVERIFY(load(bytes));
        for (qsizetype at = 0; at < bytes.size(); ++at) {
            const bool loads = load(bytes.left(at)).has_value();
            QCOMPARE(loads, at >= bytes.size() - spare);
            QCOMPARE(pictureSize(path()).has_value(), loads);
            for (const int flip : {0x01, 0x80, 0xFF}) {
                const auto damaged = static_cast<char>(bytes[at] ^ flip);
                if (const auto picture = load(with(bytes, at, QByteArray(1, damaged)))) {
                    QCOMPARE(pictureSize(path()), picture->size());
                }
            }
        }
    }

    void RefusesWhatNoPictureCanBe_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray png = encoded(halves(), "png");
        const QByteArray huge = big(10'000, 4);
        const qsizetype frame = jpeg().indexOf("\xFF\xC0") + 5;
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("BM is geen plaatje");
        QTest::newRow("bmp too wide") << bmp(32'768, 1, 1, 0, {}, QByteArray(5'000, '\0'));
        QTest::newRow("bmp of no rows") << bmp(2, 0, 24, 0, {}, {});
        QTest::newRow("bmp lowest height")
            << bmp(1, std::numeric_limits<int>::min(), 24, 0, {}, {});
        QTest::newRow("bmp huge") << bmp(10'000, 10'000, 24, 0, {}, QByteArray(99, '\0'));
        QTest::newRow("bmp rows in header")
            << with(bmp(2, 2, 24, 0, {}, QByteArray(99, '\0')), 10, little(0, 4));
        QTest::newRow("bmp runs without end") << bmp(2, 1, 8, 1, little(0, 4), "\2\0");
        QTest::newRow("png huge") << with(png, 16, huge + huge);
        QTest::newRow("png over 100 megapixels") << with(png, 16, huge + big(10'001, 4));
        QTest::newRow("png chunk too long") << with(png, 33, big(0x7FFFFFFF, 4));
        QTest::newRow("png of empty chunks")
            << QByteArray(png).insert(33, (big(0, 4) + "teSt" + big(0, 4)).repeated(70'000));
        QTest::newRow("jpeg huge") << with(jpeg(), frame, big(10'000, 2) + big(10'000, 2));
        QTest::newRow("jpeg of no rows") << with(jpeg(), frame, big(0, 2));
        QTest::newRow("jpeg of many markers")
            << jpeg().insert(2, segment('\xFE', "xx").repeated(5'000));
        QTest::newRow("jpeg of many scans") << manyScans(30);
        QTest::newRow("gif too wide") << with(gif(1, 1, "2"), 6, little(40'000, 2));
        QTest::newRow("gif frame too wide")
            << with(gif(1, 1, "2"), 6 + 7 + 384 + 8 + 5, little(40'000, 2));
        QTest::newRow("gif over 100 megapixels")
            << with(gif(1, 1, "2"), 6, little(20'000, 2) + little(20'000, 2));
    }
    void RefusesWhatNoPictureCanBe() {
        QFETCH(QByteArray, bytes);
        QVERIFY(!load(bytes));
        QVERIFY(!pictureSize(path()));
        QVERIFY(!loadThumbnail(path(), {10, 10}));
    }

    void RefusesWhatIsNoFile() {
        QVERIFY(!LoadPicture(folder_.path()));
        QVERIFY(!LoadPicture(folder_.filePath(QStringLiteral("geen.bmp"))));
        const QString pipe = folder_.filePath(QStringLiteral("pijp.bmp"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!LoadPicture(pipe));
        QVERIFY(load(bmp(2, 2, 24, 0, {}, QByteArray(16, '\0'))));
        QVERIFY(QFile::resize(path(), (qint64{256} << 20) + 1));
        QVERIFY(!LoadPicture(path()));
    }

    void TurnedPhotosComeUpright_data() {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("red");
        QTest::newRow("upright") << 1 << QSize(32, 16) << QPoint(2, 8);
        QTest::newRow("mirrored") << 2 << QSize(32, 16) << QPoint(30, 8);
        QTest::newRow("quarter right") << 6 << QSize(16, 32) << QPoint(8, 2);
        QTest::newRow("quarter left") << 8 << QSize(16, 32) << QPoint(8, 30);
        QTest::newRow("nonsense") << 99 << QSize(32, 16) << QPoint(2, 8);
    }
    void TurnedPhotosComeUpright() {
        QFETCH(int, orientation);
        QFETCH(QSize, size);
        QFETCH(QPoint, red);
        const QPoint blue = QPoint(size.width(), size.height()) - red;
        const auto picture = load(turnedJpeg(orientation));
        QVERIFY(picture);
        QCOMPARE(picture->size(), size);
        QCOMPARE(pictureSize(path()), size);
        QVERIFY(isRed(*picture, red.x(), red.y()) && !isRed(*picture, blue.x(), blue.y()));
        const auto thumbnail = loadThumbnail(path(), size / 2);
        QVERIFY(thumbnail);
        QCOMPARE(thumbnail->size(), size / 2);
        QVERIFY(isRed(*thumbnail, red.x() / 2, red.y() / 2));
    }

    void ThumbnailsFitTheBox_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("box");
        QTest::addColumn<QSize>("size");
        QTest::newRow("jpeg") << jpeg() << QSize(10, 10) << QSize(10, 5);
        QTest::newRow("jpeg as it is") << jpeg() << QSize(32, 99) << QSize(32, 16);
        QTest::newRow("wide gif canvas")
            << with(gif(2, 2, "2113"), 6, little(3'000, 2)) << QSize(30, 30) << QSize(30, 1);
        QTest::newRow("png") << encoded(halves(), "png") << QSize(99, 4) << QSize(8, 4);
        QTest::newRow("never enlarged") << gif(2, 2, "2113") << QSize(50, 50) << QSize(2, 2);
        QTest::newRow("a line") << bmp(400, 1, 1, 0, {}, QByteArray(52, '\0')) << QSize(40, 40)
                                << QSize(40, 1);
        QTest::newRow("no box") << jpeg() << QSize(0, 10) << QSize(0, 0);
    }
    void ThumbnailsFitTheBox() {
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, box);
        QVERIFY(load(bytes));
        const QImage thumbnail = loadThumbnail(path(), box).value_or(QImage());
        QTEST(thumbnail.size(), "size");
        QVERIFY(thumbnail.isNull() || thumbnail.format() == QImage::Format_RGB32);
    }

    void JpegKeepsThePicture() {
        QVERIFY(saveJpeg(halves(), path(), 100));
        const QByteArray best = *readWholeFile(path(), 100'000);
        QVERIFY(best.startsWith("\xFF\xD8\xFF"));
        const QImage back = *LoadPicture(path());
        QCOMPARE(back.size(), QSize(32, 16));
        QVERIFY(qRed(back.pixel(4, 4)) > 250 && qBlue(back.pixel(4, 4)) < 5);
        QVERIFY(saveJpeg(halves(), path(), -5));
        QVERIFY(QFileInfo(path()).size() < best.size());
    }

    void FailedSaveIsToldAndHarmsNothing() {
        QVERIFY(SavePicture(halves(), path()));
        for (const QString& bad : {path() + QStringLiteral("/onder.bmp"), folder_.path()}) {
            QVERIFY(!SavePicture(halves(), bad));
            QVERIFY(!saveJpeg(halves(), bad, 90));
        }
        QVERIFY(!SavePicture(QImage(), path()));
        QVERIFY(!saveJpeg(QImage(), path(), 90));
        comparePictures(LoadPicture(path()).value_or(QImage()), halves());
    }
};

KAART_TEST(PictureGateTest)
#include "PictureGateTest.moc"
