#include "libraries/Sticker.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QTemporaryDir>

using namespace kaart;

class StickerTest : public QObject {
    Q_OBJECT

private slots:
    void APointMeansASticker() {
        const auto lefts = [](const QList<QPoint>& points) {
            QList<int> all;
            for (const QPoint at : points) {
                all << stickerLeft(at);
            }
            return all;
        };
        QCOMPARE(lefts({{6, 6}, {214, 114}, {226, 60}, {336, 60}, {446, 60}, {544, 114}}),
                 QList<int>({0, 330, 660, 990, 1320, 1320}));
        QCOMPARE(lefts({{215, 60}, {225, 60}, {445, 60}, {545, 60}, {450, 5}, {450, 115}}),
                 QList<int>(6, 0));
    }

    void HeightsAreRoundedHalfToEven() {
        QCOMPARE(QList<int>({stickerHeight(110), stickerHeight(150), stickerHeight(215),
                             stickerHeight(250), stickerHeight(330)}),
                 QList<int>({120, 164, 234, 272, 360}));
    }

    void TheSizeAloneMakesASheet_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("isSheet");
        QTest::newRow("sheet.png") << QSize(1650, 360) << true;
        QTest::newRow("high.bmp") << QSize(1650, 361) << false;
    }
    void TheSizeAloneMakesASheet() {
        QFETCH(QSize, size);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QString::fromUtf8(QTest::currentDataTag()));
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(0xFF102030);
        QVERIFY(picture.save(path) && QFile::rename(path, path + ".art"));
        Sticker sticker;
        QVERIFY(!sticker.openSheet(path));
        QTEST(sticker.openSheet(path + ".art"), "isSheet");
        QTEST(sticker.Pic.Point(549, 119) == RGB(0x10, 0x20, 0x30), "isSheet");
        QTEST(sticker.openSheet(path), "isSheet"); // unreadable: the picture before it counts
    }
};

KAART_TEST(StickerTest)
#include "StickerTest.moc"
