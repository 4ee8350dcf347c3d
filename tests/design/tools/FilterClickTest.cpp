#include "design/tools/FilterClick.h"
#include "tests/support/LiteralFilters.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

const FilterRow& rowOf(const char* caption) {
    return *std::ranges::find_if(filterTable(), [caption](const FilterRow& row) {
        return std::strcmp(row.caption, caption) == 0 && !row.isSubMenu();
    });
}

QImage literally(const char* op, const QImage& before, std::int32_t parameter = 0) {
    QImage result = before.copy();
    findLiteral(op)->run(spanOf(result), spanOf(before), parameter);
    return result;
}

/// A design with a picture of its own, and a click that comes in while a filter runs.
struct Desk {
    Desk() { design.open(picture, "Kaart"); }
    void meanwhile(const std::function<void()>& click) { QTimer::singleShot(0, &design, click); }

    std::mt19937 random{1};
    const QImage picture = randomPicture(440, 640, random);
    Design design{{}};
};

} // namespace

class FilterClickTest : public QObject {
    Q_OBJECT

private slots:
    void AClickTakesTheUndoCopyAndMarksTheDesign() {
        Desk desk;
        Design& design = desk.design;
        QList<bool> visible;
        QList<bool> busy;
        connect(&design, &Design::progressChanged, &design, [&] {
            visible.append(design.Voortgang.Visible);
            busy.append(design.Voortgang.Busy);
        });
        filterClick(design, rowOf("Blur"));
        comparePictures(design.Pic().Image(), literally("blur", desk.picture));
        comparePictures(design.UndoPic().Image(), desk.picture);
        QVERIFY(design.Gewijzigd);
        QCOMPARE(design.TekenModus, 114);
        QCOMPARE(design.FilterPercent, 100);
        QVERIFY(!design.FilterBusy);
        QVERIFY(visible.first() && busy.first());
        QVERIFY(!visible.last() && !busy.last());
        QCOMPARE(design.Voortgang.Percent, 100);
        QVERIFY(design.Voortgang.Bar.Point(379, 9) != white);
    }

    void OnlyTheFilterArraySetsTheTool() {
        Desk desk;
        filterClick(desk.design, rowOf("RGB --> BGR"));
        filterClick(desk.design, rowOf("Flip Horizontaal"));
        QCOMPARE(desk.design.TekenModus, 999);
        filterClick(desk.design, rowOf("Inkleuren"));
        QCOMPARE(desk.design.TekenModus, 103);
    }

    void SepiaIsGrayscaleAndThenItsPass() {
        Desk desk;
        filterClick(desk.design, rowOf("Sepia"));
        comparePictures(desk.design.Pic().Image(),
                        literally("sepia", literally("grayscale", desk.picture)));
        comparePictures(desk.design.UndoPic().Image(), desk.picture);
    }

    void AnArrayFilterDoesNothingWhileAnotherRuns() {
        Desk desk;
        Design& design = desk.design;
        bool hiddenAfterwards = false;
        desk.meanwhile([&] {
            QVERIFY(design.FilterBusy);
            filterClick(design, rowOf("Negative"));
            hiddenAfterwards = !design.Voortgang.Visible;
        });
        filterClick(design, rowOf("Smooth"));
        QVERIFY(hiddenAfterwards);
        comparePictures(design.Pic().Image(), literally("smooth", desk.picture));
        comparePictures(design.UndoPic().Image(), desk.picture);
    }

    void APassIsNotGuarded() {
        Desk desk;
        desk.meanwhile([&] { filterClick(desk.design, rowOf("Dodge")); });
        filterClick(desk.design, rowOf("Dodge"));
        // The click came in after the first row: that one was doubled first.
        const QImage once = literally("dodge", desk.picture);
        comparePictures(desk.design.Pic().Image(), literally("dodge", once));
    }

    void ATurnOfTheCanvasMeanwhileDropsTheResult() {
        for (const char* caption :
             {"Erode", "Modern", "Sepia", "Copy Linkerzijde", "Copy Hoeken"}) {
            Desk desk;
            desk.meanwhile([&] { desk.design.ZetRichting(2); });
            filterClick(desk.design, rowOf(caption));
            QCOMPARE(desk.design.Pic().bounds().size(), QSize(640, 440));
            // The fresh canvas is white, and stays so on the array path.
            if (caption == QLatin1String("Erode")) {
                QCOMPARE(desk.design.Pic().Point(300, 200), white);
            }
        }
    }

    void AFreeNumberChangesNothing() {
        Desk desk;
        desk.design.change([&](PixelSurface& pic) { RunFilter(desk.design, pic, 8, 0); });
        comparePictures(desk.design.Pic().Image(), desk.picture);
        QVERIFY(!desk.design.FilterBusy);
    }

    void TheLastFigureStaysWhereTheTotalIsNought() {
        Desk desk;
        ShowProgress(desk.design, 1, 4);
        ShowProgress(desk.design, 1, 0);
        QCOMPARE(desk.design.Voortgang.Percent, 25);
        QCOMPARE(desk.design.Voortgang.Bar.Point(95, 0), RGB(0, 130, 0));
        QCOMPARE(desk.design.Voortgang.Bar.Point(96, 0), white);
    }
};

KAART_TEST(FilterClickTest)
#include "FilterClickTest.moc"
