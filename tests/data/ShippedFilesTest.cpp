#include "design/surface/FileList.h"
#include "design/surface/PictureGate.h"
#include "design/surface/TextFile.h"
#include "design/tools/FrameRings.h"
#include "libraries/ArrowSheet.h"
#include "libraries/LineDrawing.h"
#include "libraries/Sticker.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QDirIterator>

using namespace kaart;

namespace {

const QSize upright(440, 640);
const QSize lying(640, 440);
constexpr QRgb white = 0xFFFFFFFF;

QString dataFile(const QString& path) {
    return qEnvironmentVariable("KAART_SOURCE") + QStringLiteral("/data/") + path;
}

QStringList filesIn(const QString& folder, const QString& pattern) {
    return fileNames(dataFile(folder), {pattern});
}

QByteArray firstBytes(const QString& path, int count) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(count) : QByteArray();
}

/// How many pixels of a part fulfil a condition.
template <typename Condition>
int count(const QImage& picture, const QRect& part, const Condition& condition) {
    int found = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            found += condition(picture.pixel(x, y)) ? 1 : 0;
        }
    }
    return found;
}

int notWhite(const QImage& picture, const QRect& part) {
    return count(picture, part, [](QRgb pixel) { return pixel != white; });
}

/// One row per file of a folder.
void rowsOf(const QString& folder, const QString& pattern) {
    QTest::addColumn<QString>("path");
    for (const QString& name : filesIn(folder, pattern)) {
        QTest::newRow(qPrintable(folder + u'/' + name)) << dataFile(folder + u'/' + name);
    }
}

} // namespace

/// What lies in the box against the rules of the windows that open it.
class ShippedFilesTest : public QObject {
    Q_OBJECT

    using Folder = Rows<QString, QString, int>; // pattern, first name and at least so many

private slots:
    void EachFolderIsFullAndStartsWithItsFirstName_data() {
        const Folder row;
        row("Frames", "*.jpg", "Frame-001.jpg", 16);
        row("Templates", "*.jpg", "Template-001.jpg", 16);
        row("Achtergronden", "*.jpg", "Achtergrond-001.jpg", 16);
        row("Maskers", "*.jpg", "Masker-001.jpg", 12);
        row("Lijsten", "*.fra", "Lijst-001.fra", 40);
        row("Stickers", "*.art", "", 12);
        row("Vectors", "*.vec", "", 16);
        row("Data", "*.txt", "", 24);
    }
    void EachFolderIsFullAndStartsWithItsFirstName() {
        const auto [pattern, first, atLeast] = Folder::now();
        const QString folder = QString::fromLatin1(QTest::currentDataTag());
        const QStringList names = filesIn(folder, pattern);
        QVERIFY2(names.size() >= atLeast, qPrintable(names.join(u' ')));
        if (!first.isEmpty()) {
            QCOMPARE(names.first(), first);
        }
        for (const QString& name : names) {
            QCOMPARE(fromWindows1252(toWindows1252(name)), name);
            QVERIFY2(!name.contains(QRegularExpression(QStringLiteral("[\\\\/:*?\"<>|]"))),
                     qPrintable(name));
        }
    }

    void CardPicturesAreJpegOfACardsSize_data() {
        rowsOf(QStringLiteral("Frames"), QStringLiteral("*.jpg"));
        rowsOf(QStringLiteral("Templates"), QStringLiteral("*.jpg"));
        rowsOf(QStringLiteral("Achtergronden"), QStringLiteral("*.jpg"));
    }
    void CardPicturesAreJpegOfACardsSize() {
        QFETCH(QString, path);
        QCOMPARE(firstBytes(path, 2), QByteArray("\xFF\xD8"));
        const auto picture = LoadPicture(path);
        QVERIFY(picture);
        QVERIFY(picture->size() == upright || picture->size() == lying);
    }

    void EachKindHasEightUprightAndEightLying() {
        for (const char* folder : {"Frames", "Templates", "Achtergronden"}) {
            const QString name = QString::fromLatin1(folder);
            QList<QSize> sizes;
            for (const QString& file : filesIn(name, QStringLiteral("*.jpg"))) {
                sizes << pictureSize(dataFile(name + u'/' + file)).value_or(QSize());
            }
            QVERIFY2(sizes.count(upright) >= 8 && sizes.count(lying) >= 8, folder);
        }
    }

    void MasksAreLyingWithHardShapes_data() {
        rowsOf(QStringLiteral("Maskers"), QStringLiteral("*.jpg"));
    }
    void MasksAreLyingWithHardShapes() {
        QFETCH(QString, path);
        QCOMPARE(firstBytes(path, 2), QByteArray("\xFF\xD8"));
        const auto picture = LoadPicture(path);
        QVERIFY(picture);
        QCOMPARE(picture->size(), lying);
        const auto whitens = [](QRgb pixel) {
            return qRed(pixel) > 250 && qGreen(pixel) > 250 && qBlue(pixel) > 250;
        };
        const auto dark = [](QRgb pixel) { return qGray(pixel) < 160; };
        const int all = lying.width() * lying.height();
        const int open = count(*picture, picture->rect(), whitens);
        const int closed = count(*picture, picture->rect(), dark);
        QVERIFY(open > all / 10 && closed > all / 10);
        QVERIFY2(all - open - closed < all / 20, "too much between white and dark");
    }

    void StickersStandAloneOnWhite_data() {
        rowsOf(QStringLiteral("Stickers"), QStringLiteral("*.art"));
    }
    void StickersStandAloneOnWhite() {
        QFETCH(QString, path);
        QVERIFY2(firstBytes(path, 2) != QByteArray("\xFF\xD8"), "not lossless");
        Sticker sticker;
        QVERIFY(sticker.openSheet(path));
        const QImage sheet = sticker.BackPic.Image();
        for (int left = 0; left < sheetSize.width(); left += stickerCell.width()) {
            const QRect cell(QPoint(left, 0), stickerCell);
            QVERIFY(notWhite(sheet, cell) > 10000);
            // The rim takes five of the twelve pixels that stay free around a sticker.
            QCOMPARE(notWhite(sheet, cell), notWhite(sheet, cell.adjusted(4, 4, -4, -4)));
        }
    }

    void LineDrawingsAreGreyAndLargerThanTheWindow_data() {
        rowsOf(QStringLiteral("Vectors"), QStringLiteral("*.vec"));
    }
    void LineDrawingsAreGreyAndLargerThanTheWindow() {
        QFETCH(QString, path);
        LineDrawing drawing;
        QVERIFY(drawing.open(path));
        QVERIFY(!drawing.overflow().isEmpty());
        const QImage picture = drawing.BackPic.Image();
        QCOMPARE(count(picture, picture.rect(), [](QRgb pixel) { return !qIsGray(pixel); }), 0);
        const int all = picture.width() * picture.height();
        QVERIFY(notWhite(picture, picture.rect()) < all / 3);
        QVERIFY(count(picture, picture.rect(), [](QRgb pixel) { return qRed(pixel) < 20; }) >
                all / 100);
    }

    void EachOfTheEightyArrowsIsThere() {
        ArrowSheet sheet;
        QVERIFY(sheet.open(dataFile(QStringLiteral("Data/Arrows.arr"))));
        const QImage picture = sheet.BackPic.Image();
        QCOMPARE(picture.size(), QSize(ArrowSheet::perRow, ArrowSheet::rows) * ArrowSheet::cell);
        QSet<QByteArray> seen;
        for (int i = 0; i < ArrowSheet::perRow * ArrowSheet::rows; ++i) {
            const QRect cell(QPoint(i % ArrowSheet::perRow, i / ArrowSheet::perRow) *
                                 ArrowSheet::cell,
                             QSize(ArrowSheet::cell, ArrowSheet::cell));
            QVERIFY2(notWhite(picture, cell) > 300, qPrintable(QString::number(i)));
            const QImage copy = picture.copy(cell);
            seen << QByteArray(reinterpret_cast<const char*>(copy.constBits()), copy.sizeInBytes());
        }
        QCOMPARE(seen.size(), 80);
    }

    void RingFramesDrawSomething_data() {
        rowsOf(QStringLiteral("Lijsten"), QStringLiteral("*.fra"));
    }
    void RingFramesDrawSomething() {
        QFETCH(QString, path);
        const auto picture = LoadPicture(path);
        QVERIFY(picture);
        QCOMPARE(picture->size(), QSize(80, 80));
        PixelSurface frame(80, 80);
        frame.setPicture(*picture);
        PixelSurface card(upright.width(), upright.height());
        TekenLijst(card, frame, 0, 0, upright.width(), upright.height());
        const QRect middle = card.bounds().adjusted(80, 80, -80, -80);
        QVERIFY(notWhite(card.Image(), card.bounds()) > 2000);
        QCOMPARE(notWhite(card.Image(), middle), 0);
    }

    void TextsFitACardInBothDirections_data() {
        rowsOf(QStringLiteral("Data"), QStringLiteral("*.txt"));
    }
    void TextsFitACardInBothDirections() {
        QFETCH(QString, path);
        const auto text = readTextFile(path);
        QVERIFY(text && text->endsWith(QStringLiteral("\r\n")));
        QCOMPARE(text->count(u'\n'), text->count(QStringLiteral("\r\n")));
        QVERIFY2(!text->contains(u','), "a comma breaks its line in two");
        QVERIFY(!text->contains(QRegularExpression(QStringLiteral("[\\x00-\\x09\\x7F-\\x9F]"))));
        PixelSurface card(upright.width(), upright.height());
        card.FontSize = 18;
        const QStringList lines = splitLines(*text);
        for (const QString& line : lines) {
            QVERIFY2(card.TextWidth(line) <= upright.width(), qPrintable(line));
            QCOMPARE(line, line.trimmed());
        }
        QVERIFY(static_cast<double>(lines.size()) * card.TextHeight(lines.first()) <=
                lying.height());
    }

    void TheManualsAreWhole() {
        for (const char* name : {"Data/Help.pdf", "Data/Beeldscherm.pdf"}) {
            QFile manual(dataFile(QString::fromLatin1(name)));
            QVERIFY2(manual.open(QIODevice::ReadOnly), name);
            const QByteArray bytes = manual.readAll();
            QVERIFY2(bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF"), name);
        }
    }

    void TheBoxIsNoLargerThanTenMegabytes() {
        qint64 bytes = 0;
        for (const QString& folder :
             QDir(dataFile({})).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (folder[0].isUpper()) {
                QDirIterator files(dataFile(folder), QDir::Files);
                while (files.hasNext()) {
                    files.next();
                    bytes += files.fileInfo().size();
                }
            }
        }
        QVERIFY2(bytes < 10 * 1024 * 1024, qPrintable(QString::number(bytes)));
    }
};

KAART_TEST(ShippedFilesTest)
#include "ShippedFilesTest.moc"
