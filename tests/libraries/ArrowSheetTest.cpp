#include "libraries/ArrowSheet.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QTemporaryDir>

using namespace kaart;

class ArrowSheetTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QImage picture_;
    ArrowSheet sheet_;

    QImage cell(int column, int row) const {
        return picture_.copy(column * 100, row * 100, 100, 100);
    }

private slots:
    void init() {
        std::mt19937 random(3);
        picture_ = randomPicture(400, 2000, random);
        QVERIFY(SavePicture(picture_, folder_.filePath("Arrows.arr")));
        sheet_ = ArrowSheet();
        QVERIFY(sheet_.open(folder_.filePath("Arrows.arr")));
    }

    void EveryColumnPicksItsCell() {
        sheet_.showRow(19);
        comparePictures(sheet_.Pic.Image(), picture_.copy(0, 1900, 400, 100));
        for (int x = 0; x < 400; ++x) {
            sheet_.pick(x);
            const int column = x == 99 || x == 199 || x == 299 || x == 399 ? 0 : x / 100;
            QCOMPARE(sheet_.Picture1.Image(), cell(column, 19));
        }
    }

    void FourQuarterTurnsGiveThePictureBackAndForgetTheMirror() {
        sheet_.pick(150);
        const QImage small = sheet_.MiniPic.Image();
        sheet_.mirror();
        comparePictures(sheet_.Picture1.Image(), cell(1, 0).mirrored(true, false));
        comparePictures(sheet_.MiniPic.Image(), small.mirrored(true, false));
        QImage expected = cell(1, 0);
        for (int turns = 1; turns <= 4; ++turns) {
            sheet_.turn();
            expected = expected.transformed(QTransform().rotate(90));
            comparePictures(sheet_.Picture1.Image(), expected.convertToFormat(small.format()));
        }
        comparePictures(sheet_.MiniPic.Image(), small);
    }
};

KAART_TEST(ArrowSheetTest)
#include "ArrowSheetTest.moc"
