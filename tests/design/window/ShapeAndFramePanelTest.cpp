#include "controls/Fader.h"
#include "design/surface/PictureGate.h"
#include "design/tools/ShapeTable.h"
#include "design/window/MenuTable.h"
#include "tests/support/MainDesk.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// A main window whose folder has frame files.
struct Desk : MainDesk {
    explicit Desk(const QMap<QString, ColorRef>& frames = {}) : MainDesk({}, folderWith(frames)) {}
    static std::shared_ptr<QTemporaryDir> folderWith(const QMap<QString, ColorRef>& frames) {
        auto folder = std::make_shared<QTemporaryDir>();
        QDir(folder->path()).mkdir("Lijsten");
        for (auto frame = frames.begin(); frame != frames.end(); ++frame) {
            // One ring, the second: along the edge of the design.
            PixelSurface picture(80, 80);
            picture.PSet(7, 1, frame.value());
            SavePicture(picture.Image(), folder->filePath("Lijsten/" + frame.key()));
        }
        return folder;
    }
    QAction& vorm(int index) { return control<QAction>(window, "Vormen", index); }
    QString position() { return text("Label28"); }
    ColorRef shownRing() { return toColorRef(at<SurfaceView>("LijstPic").Image().pixel(7, 1)); }
};

} // namespace

class ShapeAndFramePanelTest : public QObject {
    Q_OBJECT

private slots:
    void EachEntryChoosesTheFigureOfItsCaption() {
        Desk desk;
        auto& cut = desk.at<QCheckBox>("Check2");
        QVERIFY(!cut.isEnabled());
        desk.click("TekenKnop(1)");
        for (int i = 1; i <= 16; ++i) {
            QCOMPARE(desk.vorm(i).text().remove('&'),
                     QString::fromUtf8(shapeTable()[static_cast<std::size_t>(i - 1)].caption));
            desk.vorm(i).trigger();
            QCOMPARE(desk.design.TekenModus, i + 1);
            QCOMPARE(cut.isEnabled(), i < 4);
            QVERIFY(desk.vorm(i).isChecked());
            QVERIFY(i == 1 || !desk.vorm(i - 1).isChecked());
        }
        QVERIFY(!desk.at<VistaButton>("TekenKnop(1)").isChecked());
        desk.vorm(2).trigger();
        desk.vorm(2).trigger();
        QVERIFY(desk.vorm(2).isChecked());
        QVERIFY(desk.vorm(16).isChecked());
    }

    void TheToolButtonOpensTheFigures() {
        Desk desk;
        desk.onPopUp([&](QMenu& menu) { desk.pick(menu, "Vormen(1)"); });
        desk.click("TekenKnop(2)");
        QCOMPARE(desk.design.TekenModus, 2);
        auto& cut = desk.at<QCheckBox>("Check2");
        QVERIFY(cut.isEnabled());
        QCOMPARE(desk.text("InfoLabel"), "Tekenen van verschillende vormen.");
        auto& pic = desk.at<SurfaceView>("Pic");
        for (const bool hole : {false, true}) {
            cut.setChecked(hole);
            QTest::mousePress(&pic, Qt::LeftButton, {}, QPoint(50, 60));
            QTest::mouseMove(&pic, QPoint(90, 100));
            QTest::mouseRelease(&pic, Qt::LeftButton, {}, QPoint(90, 100));
            QCOMPARE(desk.design.Pic().Point(90, 80), hole ? white : RGB(60, 60, 60));
        }
    }

    void TheSliderChoosesAmongTheFilesInTheirOrder() {
        Desk desk({{"lijst-002.FRA", RGB(2, 2, 2)},
                   {"Lijst-001.fra", RGB(1, 1, 1)},
                   {"Lijst-004.fra", RGB(4, 4, 4)},
                   {"Ander.bmp", black}});
        QFile broken(desk.folder->filePath("Lijsten/Lijst-004.fra"));
        QVERIFY(broken.resize(100));
        auto& slider = desk.at<Fader>("LijstScroll");
        QVERIFY(slider.isEnabled());
        QCOMPARE(slider.maximum(), 3);
        QCOMPARE(desk.position(), "1 / 3");
        QCOMPARE(desk.shownRing(), RGB(1, 1, 1));
        slider.setValue(2);
        QCOMPARE(desk.position(), "2 / 3");
        QCOMPARE(desk.shownRing(), RGB(2, 2, 2));
        slider.setValue(3); // cannot be read
        QCOMPARE(desk.position(), "3 / 3");
        QCOMPARE(desk.shownRing(), RGB(2, 2, 2));
        slider.setValue(1);
        QCOMPARE(desk.shownRing(), RGB(1, 1, 1));
    }

    void TheFrameIsDrawnRoundTheDesignAndUndone() {
        Desk desk({{"Lijst-001.fra", RGB(1, 1, 1)}});
        desk.at<QAction>("Richting(2)").trigger();
        desk.design.Gewijzigd = false;
        auto& button = desk.at<VistaButton>("LijstKnop");
        QVERIFY(button.isEnabled());
        button.click();
        PixelSurface expected(640, 440);
        // The box reaches one pixel further than the design.
        expected.Line(0, 0, 640, 440, RGB(1, 1, 1), LineMode::Box);
        comparePictures(desk.design.Pic().Image(), expected.Image());
        QVERIFY(desk.design.Gewijzigd);
        desk.design.EditUndo();
        comparePictures(desk.design.Pic().Image(), PixelSurface(640, 440).Image());
    }

    void WithoutFilesThePanelStaysAsItIs() {
        Desk desk;
        QCOMPARE(desk.position(), "1 / 0");
        desk.at<Fader>("LijstScroll").setValue(2);
        QCOMPARE(desk.position(), "1 / 0");
        desk.at<VistaButton>("LijstKnop").click();
        comparePictures(desk.design.Pic().Image(), PixelSurface(440, 640).Image());
    }
};

KAART_TEST(ShapeAndFramePanelTest)
#include "ShapeAndFramePanelTest.moc"
