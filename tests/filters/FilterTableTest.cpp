#include "filters/FilterTable.h"
#include "design/surface/Random.h"
#include "filters/ColourFilters.h"
#include "tests/support/LiteralFilters.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <hwy/targets.h>

#include <set>

using namespace kaart;

namespace {

constexpr std::array sizes = {QSize(1, 1), QSize(2, 3),   QSize(3, 3),
                              QSize(5, 4), QSize(37, 23), QSize(440, 640)};

/// Counts the rows and checks their order.
class CountingRhythm final : public RowRhythm {
public:
    void rowDone(int done, int total) override {
        inOrder = inOrder && done == ++rows && rows <= total;
    }
    int rows = 0;
    bool inOrder = true;
};

/// Random pixels whose fourth byte is random, too, unless it is `solid`.
QImage picture(const QSize& size, const QString& kind, std::mt19937& random, bool solid) {
    QImage image(size, QImage::Format_RGB32);
    const PixelSpan span = spanOf(image);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto any = static_cast<Pixel>(random());
            const Pixel colour = kind == QLatin1String("random")  ? any
                                 : kind == QLatin1String("white") ? 0xFFFFFFU
                                 : kind == QLatin1String("black") ? 0
                                 : (x + y) % 2 == 0               ? 0xFFFFFFU
                                                                  : 0;
            const Pixel fourth = solid ? 0xFF000000U : any & 0xFF000000U;
            span.row(y)[x] = (colour & 0xFFFFFFU) | fourth;
        }
    }
    return image;
}

/// "" if both are the same, all four bytes, otherwise the first wrong pixel.
QString difference(const QImage& got, const QImage& expected) {
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const Pixel is = spanOf(got).row(y)[x];
            const Pixel should = spanOf(expected).row(y)[x];
            if (is != should) {
                return QStringLiteral("(%1, %2): %3 instead of %4")
                    .arg(x)
                    .arg(y)
                    .arg(is, 8, 16, QLatin1Char('0'))
                    .arg(should, 8, 16, QLatin1Char('0'));
            }
        }
    }
    return {};
}

/// Has the kernels run as on a processor that has no more than this; 0 for what there is.
void pretendProcessor(std::int64_t target) {
    hwy::SetSupportedTargetsForTest(target);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
}

QImage literal(const char* op, const QImage& source, std::int32_t parameter) {
    QImage result = source.copy();
    seedRnd(7);
    findLiteral(op)->run(spanOf(result), spanOf(source), parameter);
    return result;
}

/// All three channels of one pixel through a filter, as blue, green, red.
QList<int> through(FilterRoutine routine, std::int32_t parameter, int blue, int green, int red) {
    const Pixel source = qRgb(red, green, blue);
    Pixel result = source;
    SilentRhythm rhythm;
    routine({&result, 1, 1}, {&source, 1, 1}, parameter, rhythm);
    return {qBlue(result), qGreen(result), qRed(result)};
}

} // namespace

class FilterTableTest : public QObject {
    Q_OBJECT

private slots:
    void EveryRowHasItsOracle() {
        std::set<int> numbers;
        for (const FilterNumber& filter : filterNumbers()) {
            QVERIFY2(findLiteral(filter.op) != nullptr, filter.op);
            numbers.insert(filter.number);
        }
        for (const FilterRow& row : filterTable()) {
            QVERIFY2(row.number == 0 || numbers.contains(row.number), row.caption);
            QVERIFY2(row.pass.run == nullptr || findLiteral(row.pass.op) != nullptr, row.caption);
        }
    }

    void KernelsEqualTheirOracles_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("kind");
        int row = 0;
        for (const FilterRow& entry : filterTable()) {
            for (const char* kind : {"random", "white", "black", "checkered"}) {
                if (!entry.isSubMenu()) {
                    QTest::addRow("%s(%d) %s", entry.name, entry.index, kind)
                        << row << QString::fromLatin1(kind);
                }
            }
            ++row;
        }
    }

    void KernelsEqualTheirOracles() {
        QFETCH(const int, row);
        QFETCH(const QString, kind);
        const FilterRow& entry = filterTable()[static_cast<std::size_t>(row)];
        std::mt19937 random(5);
        for (const QSize& size : sizes) {
            if (entry.number != 0) {
                const QImage source = picture(size, kind, random, false);
                const auto found =
                    std::ranges::find(filterNumbers(), entry.number, &FilterNumber::number);
                QImage result = source.copy();
                CountingRhythm rhythm;
                seedRnd(7);
                found->routine(spanOf(result), spanOf(source), entry.parameter, rhythm);
                QCOMPARE(difference(result, literal(found->op, source, entry.parameter)),
                         QString());
                QVERIFY(rhythm.inOrder);
                QCOMPARE(rhythm.rows, size.height());
            }
            if (entry.pass.run != nullptr) {
                const QImage source = picture(size, kind, random, true);
                PixelSurface pic(size.width(), size.height());
                pic.setPicture(source);
                PixelSurface undo = pic;
                SilentRhythm rhythm;
                entry.pass.run(pic, undo, rhythm);
                QCOMPARE(difference(pic.Image(), literal(entry.pass.op, source, 0)), QString());
            }
        }
    }

    void OtherParametersAndProcessorsEqualTheOraclesToo_data() {
        QTest::addColumn<qint64>("target");
        for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
            QTest::newRow(hwy::TargetName(target)) << qint64{target};
        }
    }

    void OtherParametersAndProcessorsEqualTheOraclesToo() {
        QFETCH(const qint64, target);
        pretendProcessor(target);
        const auto back = qScopeGuard([] { pretendProcessor(0); });
        std::mt19937 random(9);
        const QImage source = picture({61, 17}, QStringLiteral("random"), random, false);
        for (const FilterNumber& filter : filterNumbers()) {
            for (const std::int32_t parameter : {140, 50, 33, 10, 7, 3, 1, 0x123456}) {
                const bool isColour = parameter > 0xFFFF;
                if (isColour != (std::strcmp(filter.op, "contour") == 0)) {
                    continue;
                }
                QImage result = source.copy();
                SilentRhythm rhythm;
                seedRnd(7);
                filter.routine(spanOf(result), spanOf(source), parameter, rhythm);
                const QString wrong = difference(result, literal(filter.op, source, parameter));
                QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("%1 %2: %3")
                                                         .arg(QLatin1String(filter.op))
                                                         .arg(parameter)
                                                         .arg(wrong)));
            }
        }
    }

    void SinglePixelsComeOutAsTold() {
        QCOMPARE(through(FilterNegative, 0, 0, 100, 255), QList<int>({255, 155, 0}));
        QCOMPARE(through(FilterGrayscale, 0, 0, 1, 1), QList<int>({0, 0, 0}));
        QCOMPARE(through(FilterLight, 4, 0, 100, 250), QList<int>({0, 104, 255}));
        QCOMPARE(through(FilterSaturation, 140, 100, 100, 100), QList<int>({100, 100, 100}));
        QCOMPARE(through(FilterSaturation, 140, 90, 100, 110), QList<int>({76, 100, 124}));
        QCOMPARE(through(FilterSwap, 1, 1, 2, 3), QList<int>({2, 3, 1}));
        const auto pass = [](void (*map)(PixelSpan, ConstPixelSpan), int gray) {
            Pixel pixel = qRgb(gray, gray, gray);
            map({&pixel, 1, 1}, {&pixel, 1, 1});
            return QList<int>({qBlue(pixel), qGreen(pixel), qRed(pixel)});
        };
        QCOMPARE(pass(FilterSepia, 10), QList<int>({0, 0, 10}));
        QCOMPARE(pass(FilterSepia, 200), QList<int>({120, 160, 200}));
        const QList<std::pair<int, int>> modern = {{0, 0},   {1, 254},   {2, 255},  {127, 255},
                                                   {128, 1}, {254, 254}, {255, 255}};
        for (const auto& [before, after] : modern) {
            QCOMPARE(pass(FilterModern, before), QList<int>({after, after, after}));
        }
        QCOMPARE(pass(FilterDodge, 127), QList<int>({254, 254, 254}));
        QCOMPARE(pass(FilterDodge, 128), QList<int>({255, 255, 255}));
    }

    void TheThresholdCountsAsANumber_data() {
        QTest::addColumn<double>("threshold");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << 0.0 << "00000";
        QTest::newRow("negative") << -5.0 << "00000";
        QTest::newRow("just below") << 84.5 << "00001";
        QTest::newRow("reached") << 85.0 << "00001";
        QTest::newRow("just above") << 85.5 << "01111";
        QTest::newRow("beyond") << 300.0 << "11111";
    }

    void TheThresholdCountsAsANumber() {
        QFETCH(const double, threshold);
        QFETCH(const QString, expected);
        // White, and red, green and blue alone: a gray value of 85 each.
        const QImage source = pictureOf({"02341"});
        QImage result = source.copy();
        FilterZwartWit(spanOf(result), spanOf(source), threshold);
        QCOMPARE(spell(result), QStringList(expected));
    }

    void SwapsAndNegativesGiveThePictureBack() {
        std::mt19937 random(11);
        const QImage source = picture({37, 23}, QStringLiteral("random"), random, false);
        const auto repeated = [&](FilterRoutine routine, std::int32_t parameter, int times) {
            QImage result = source.copy();
            for (int i = 0; i < times; ++i) {
                const QImage before = result.copy();
                SilentRhythm rhythm;
                routine(spanOf(result), spanOf(before), parameter, rhythm);
            }
            return difference(result, source);
        };
        QCOMPARE(repeated(FilterNegative, 0, 2), QString());
        QCOMPARE(repeated(FilterSwap, 4, 2), QString());
        QCOMPARE(repeated(FilterSwap, 1, 3), QString());
        QCOMPARE(repeated(FilterSwap, 2, 3), QString());
    }
};

KAART_TEST(FilterTableTest)
#include "FilterTableTest.moc"
