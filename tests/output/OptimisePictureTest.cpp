#include "output/OptimisePicture.h"
#include "tests/support/LiteralOptimise.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

class CountingRhythm final : public RowRhythm {
public:
    int rows = 0;
    void rowDone(int done, int total) override {
        ++rows;
        inStep = inStep && done == rows && done <= total;
    }
    bool inStep = true;
};

} // namespace

class OptimisePictureTest : public QObject {
    Q_OBJECT

private slots:
    void DoublingEqualsTheLiteralLoop_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("colours");
        QTest::newRow("one pixel") << QSize(1, 1) << 0;
        QTest::newRow("one column") << QSize(1, 5) << 0;
        QTest::newRow("one row") << QSize(7, 1) << 0;
        QTest::newRow("quarters, full of ties") << QSize(2, 2) << 0;
        QTest::newRow("eighths, full of ties") << QSize(4, 4) << 3;
        QTest::newRow("just over a batch") << QSize(33, 31) << 0;
        QTest::newRow("odd") << QSize(201, 37) << 0;
        QTest::newRow("upright design") << QSize(440, 640) << 0;
        QTest::newRow("lying design") << QSize(640, 440) << 2;
    }
    void DoublingEqualsTheLiteralLoop() {
        QFETCH(QSize, size);
        QFETCH(int, colours);
        std::mt19937 random(static_cast<unsigned>(size.width() * 1000 + size.height()));
        for (int round = 0; round < (size.width() < 5 ? 50 : 1); ++round) {
            PixelSurface source(size.width(), size.height());
            source.setPicture(randomPicture(size.width(), size.height(), random, colours));
            QImage target(size * 2, QImage::Format_RGB32);
            PixelSurface expected(target.width(), target.height());
            literalOptimise(source, expected);
            CountingRhythm rhythm;
            OptimisePicture(source.pixels(), spanOf(target), rhythm);
            comparePictures(target, expected.Image());
            QVERIFY(rhythm.inStep && rhythm.rows == 2 * size.height());
        }
    }
};

KAART_TEST(OptimisePictureTest)
#include "OptimisePictureTest.moc"
