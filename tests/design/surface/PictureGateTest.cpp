#include "design/surface/PictureGate.h"
#include "design/surface/TextFile.h"
#include "design/surface/WholeFile.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <QtEndian>

#include <sys/stat.h>

using namespace kaart;

namespace {

QByteArray little(qint64 value, int bytes) {
    const qint64 turned = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char*>(&turned), bytes);
}

QByteArray big(qint64 value, int bytes) {
    QByteArray result = little(value, bytes);
    std::reverse(result.begin(), result.end());
    return result;
}

QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

QByteArray with(QByteArray bytes, qsizetype at, const QByteArray& patch) {
    return bytes.replace(at, patch.size(), patch);
}

// A BMP whose `table` (masks, palette, a longer header) stands between header and rows.
QByteArray bmp(int width, int height, int bits, int compression, const QByteArray& table,
               const QByteArray& rows, int headerBytes = 40) {
    const auto start = 54 + table.size();
    return "BM" + little(start + rows.size(), 4) + little(0, 4) + little(start, 4) +
           little(headerBytes, 4) + little(width, 4) + little(height, 4) + little(1, 2) +
           little(bits, 2) + little(compression, 4) + little(0, 4) + little(11'811, 4) +
           little(11'811, 4) + little(headerBytes == 40 ? table.size() / 4 : 0, 4) + little(0, 4) +
           table + rows;
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
    const QByteArray size = little(width, 2) + little(height, 2);
    return "GIF89a" + size + hex("e60000") + colours + hex("21f9040100000300") + "," +
           little(0, 4) + size + hex("0007") + little(codes.size(), 1) + codes + hex("003b");
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
    return pictureOf({"24"}).scaled(32, 16);
}

QByteArray jpeg(bool progressive = false) {
    return encoded(halves(), "jpeg", progressive);
}

const char palette[] = "ffffff00 00000000 0000ff00";

QByteArray segment(char marker, const QByteArray& content) {
    return '\xFF' + (marker + big(content.size() + 2, 2)) + content;
}

QByteArray turnedJpeg(int orientation) {
    const QByteArray exif =
        QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 24) +
        little(orientation, 4) + little(0, 4);
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
    QString path() const { return folder_.filePath("plaat@2x.bmp"); }

    std::optional<QImage> load(const QByteArray& bytes) const {
        QFile file(path());
        file.remove(); // a new file is much cheaper than an overwritten one
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        return LoadPicture(path());
    }

    QTemporaryDir folder_;

    using Kind = Rows<QByteArray>;
    using Turning = Rows<int, QSize, QPoint>;
    using Box = Rows<QByteArray, QSize, QSize>;

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("qt.gui.imageio*=false"); }

    void SavedBmpHasTheseBytes() {
        QVERIFY(SavePicture(pictureOf({"20", "41"}), path()));
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
        const Kind row;
        const QByteArray rows24 = hex("000000 ffffff 0000 0000ff 000000 0000");
        const QByteArray topDown = rows24.mid(8) + rows24.left(8);
        const QByteArray rows32 = hex("00000000 ffffff00 0000ff00 00000000");
        row("bmp 24", bmp(2, 2, 24, 0, {}, rows24));
        row("bmp top-down", bmp(2, -2, 24, 0, {}, topDown));
        row("bmp 4", bmp(2, 2, 4, 0, hex(palette), hex("10000000 21000000")));
        row("bmp 8", bmp(2, 2, 8, 0, hex(palette), hex("01000000 02010000")));
        row("bmp run-length 8",
            bmp(2, 2, 8, 1, hex(palette), hex("0101 0100 0000 0102 0101 0001")));
        row("bmp 16", bmp(2, 2, 16, 0, {}, hex("0000ff7f 007c0000")));
        row("bmp 16 with green of 6 bits",
            bmp(2, 2, 16, 3, hex("00f80000 e0070000 1f000000"), hex("0000ffff 00f80000")));
        row("bmp 32", bmp(2, 2, 32, 0, {}, rows32));
        row("bmp 32 of empty opacity",
            bmp(2, 2, 32, 3, hex("0000ff00 00ff0000 ff000000 000000ff") + QByteArray(52, '\0'),
                rows32, 108));
        row("bmp of the old header",
            "BM" + hex("2a000000 00000000 1a000000 0c000000 0200 0200 0100 1800") + rows24);
        row("gif", gif(2, 2, "2113"));
        row("gif of no canvas size", with(gif(2, 2, "2113"), 6, little(0, 4)));
        QImage clear = pictureOf({"21", "10"}).convertToFormat(QImage::Format_ARGB32);
        clear.setPixel(1, 1, 0x00FF0000);
        row("png", encoded(clear, "png"));
    }
    void ReadsEveryKindOfFile() {
        const auto [bytes] = Kind::now();
        const auto picture = load(bytes);
        QVERIFY(picture);
        QCOMPARE(spell(*picture).join(','), "21,10");
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
        const Kind row;
        const QByteArray png = encoded(halves(), "png");
        const QByteArray huge = big(10'000, 4);
        const qsizetype frame = jpeg().indexOf("\xFF\xC0") + 5;
        row("empty", QByteArray());
        row("text", QByteArray("BM is geen plaatje"));
        row("bmp too wide", bmp(32'768, 1, 1, 0, {}, QByteArray(5'000, '\0')));
        row("bmp of no rows", bmp(2, 0, 24, 0, {}, {}));
        row("bmp lowest height", bmp(1, std::numeric_limits<int>::min(), 24, 0, {}, {}));
        row("bmp huge", bmp(10'000, 10'000, 24, 0, {}, QByteArray(99, '\0')));
        row("bmp rows in header",
            with(bmp(2, 2, 24, 0, {}, QByteArray(99, '\0')), 10, little(0, 4)));
        row("bmp runs without end", bmp(2, 1, 8, 1, little(0, 4), "\2\0"));
        row("png huge", with(png, 16, huge + huge));
        row("png over 100 megapixels", with(png, 16, huge + big(10'001, 4)));
        row("png chunk too long", with(png, 33, big(0x7FFFFFFF, 4)));
        row("png of empty chunks",
            QByteArray(png).insert(33, (big(0, 4) + "teSt" + big(0, 4)).repeated(70'000)));
        row("jpeg huge", with(jpeg(), frame, big(10'000, 2) + big(10'000, 2)));
        row("jpeg of no rows", with(jpeg(), frame, big(0, 2)));
        row("jpeg of many markers", jpeg().insert(2, segment('\xFE', "xx").repeated(5'000)));
        row("jpeg of many scans", manyScans(30));
        row("gif too wide", with(gif(1, 1, "2"), 6, little(40'000, 2)));
        row("gif frame too wide", with(gif(1, 1, "2"), 6 + 7 + 384 + 8 + 5, little(40'000, 2)));
        row("gif over 100 megapixels",
            with(gif(1, 1, "2"), 6, little(20'000, 2) + little(20'000, 2)));
    }
    void RefusesWhatNoPictureCanBe() {
        const auto [bytes] = Kind::now();
        QVERIFY(!load(bytes));
        QVERIFY(!pictureSize(path()));
        QVERIFY(!loadThumbnail(path(), {10, 10}));
    }

    void RefusesWhatIsNoFile() {
        QVERIFY(!LoadPicture(folder_.path()));
        QVERIFY(!LoadPicture(folder_.filePath("geen.bmp")));
        const QString pipe = folder_.filePath("pijp.bmp");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!LoadPicture(pipe));
        QVERIFY(load(bmp(2, 2, 24, 0, {}, QByteArray(16, '\0'))));
        QVERIFY(QFile::resize(path(), (qint64{256} << 20) + 1));
        QVERIFY(!LoadPicture(path()));
    }

    void TurnedPhotosComeUpright_data() {
        const Turning row;
        row("upright", 1, {32, 16}, {2, 8});
        row("mirrored", 2, {32, 16}, {30, 8});
        row("quarter right", 6, {16, 32}, {8, 2});
        row("quarter left", 8, {16, 32}, {8, 30});
        row("nonsense", 99, {32, 16}, {2, 8});
    }
    void TurnedPhotosComeUpright() {
        const auto [orientation, size, red] = Turning::now();
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
        const Box row;
        row("jpeg", jpeg(), {10, 10}, {10, 5});
        row("jpeg as it is", jpeg(), {32, 99}, {32, 16});
        row("wide gif canvas", with(gif(2, 2, "2113"), 6, little(3'000, 2)), {30, 30}, {30, 1});
        row("png", encoded(halves(), "png"), {99, 4}, {8, 4});
        row("never enlarged", gif(2, 2, "2113"), {50, 50}, {2, 2});
        row("a line", bmp(400, 1, 1, 0, {}, QByteArray(52, '\0')), {40, 40}, {40, 1});
        row("no box", jpeg(), {0, 10}, {0, 0});
    }
    void ThumbnailsFitTheBox() {
        const auto [bytes, box, size] = Box::now();
        QVERIFY(load(bytes));
        const QImage thumbnail = loadThumbnail(path(), box).value_or(QImage());
        QCOMPARE(thumbnail.size(), size);
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
        for (const QString& bad : {path() + "/onder.bmp", folder_.path()}) {
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
