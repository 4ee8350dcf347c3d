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
        const QImage source = picture({61, 17}, "random", random, false);
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

    void TheThresholdCountsAsANumber() {
        for (const auto& [threshold, expected] : {std::pair(0.0, "00000"),
                                                  {-5.0, "00000"},
                                                  {84.5, "00001"},
                                                  {85.0, "00001"},
                                                  {85.5, "01111"},
                                                  {300.0, "11111"}}) {
            // White, and red, green and blue alone: a gray value of 85 each.
            const QImage source = pictureOf({"02341"});
            QImage result = source.copy();
            FilterZwartWit(spanOf(result), spanOf(source), threshold);
            QCOMPARE(spell(result), QStringList(expected));
        }
        // 298 and 299 parts are 99 and 100 to the nearest.
        const Pixel sums[] = {qRgb(100, 99, 99), qRgb(100, 100, 99)};
        Pixel results[2];
        FilterZwartWit({results, 2, 1}, {sums, 2, 1}, 100);
        QVERIFY(results[0] == qRgb(0, 0, 0) && results[1] == qRgb(255, 255, 255));
    }
};

KAART_TEST(FilterTableTest)
#include "FilterTableTest.moc"
