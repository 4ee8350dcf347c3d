#include "pictures/window/Dialogform.h"
#include "tests/support/FormTest.h"

using namespace kaart;

namespace {

constexpr ColorRef yellow = RGB(255, 255, 0);

} // namespace

class DialogformTest : public FormTest<Dialogform> {
    Q_OBJECT

    QList<QImage> wallpapers_;

    ColorRef outline(const char* name) const {
        const QColor colour = part(name).palette().color(QPalette::WindowText);
        return RGB(colour.red(), colour.green(), colour.blue());
    }
    void menu(const char* name) const { part<QAction>(name).trigger(); }
    bool has(const char* name) const { return form_->findChild<QWidget*>(name) != nullptr; }
    void openIn(const QString& folder) {
        design_->pictureFolder = path(folder);
        open(nullptr, [this](QWidget*, const QImage& picture) { wallpapers_ << picture; });
        QTRY_VERIFY(!part("Bar").isVisible());
    }

private slots:
    void init() {
        begin();
        QVERIFY(QDir(root_->path()).mkdir("Leeg"));
        write("a rood.bmp", plain(300, 200, RGB(255, 0, 0)));
        write("b blauw.bmp", plain(20, 30, RGB(0, 0, 255)));
        write("c.bmp", plain(700, 700, RGB(0, 255, 0)));
        write("d stuk.jpg", "\xFF\xD8\xFF\xE0");
        write("e.bmp", plain(3, 3, RGB(1, 2, 3)));
        write("f.gif", plain(4, 2, RGB(9, 9, 9)));
        for (int i = 0; i < 26; ++i) {
            write(QString::asprintf("Veel/%02d.bmp", i), plain(4, 4, RGB(i, 0, 0)));
        }
        design_->change([](PixelSurface& pic) { pic.Line(9, 9, 99, 99, RGB(250, 0, 0)); });
        wallpapers_.clear();
        openIn(QString());
    }

    void TheSheetHasFiveThumbnailsToARow() {
        QCOMPARE(text("CounterLabel"), "6 / 6 Afbeeldingen");
        QCOMPARE(part("Image1(0)").geometry(), QRect(13, 13, 90, 66));
        QCOMPARE(part("Border(0)").geometry(), QRect(11, 11, 95, 71));
        QCOMPARE(part("Image1(1)").geometry(), QRect(133, 13, 66, 90));
        QCOMPARE(part("Image1(2)").geometry(), QRect(253, 13, 80, 80));
        QCOMPARE(part("Image1(5)").pos(), QPoint(13, 123));
        QCOMPARE(part("Image1(1)").toolTip(), " b blauw.bmp ");
        comparePictures(image("Image1(1)"), plain(66, 90, RGB(0, 0, 255)));
        comparePictures(image("Image1(3)"), image("Image1(2)"));
        QVERIFY(!part("VScroll1").isVisible());
    }

    void AnotherFolderReplacesTheSheet() {
        QListWidget& folders = part<QListWidget>("Dir1");
        folders.setCurrentItem(folders.findItems("Veel", Qt::MatchExactly).value(0));
        folders.setFocus();
        QTest::keyClick(&folders, Qt::Key_Return);
        QCOMPARE(text("CounterLabel"), "26 Afbeeldingen");
        QVERIFY(!has("Image1(0)") && part("Bar").isVisible());
        QTRY_VERIFY(!part("Bar").isVisible());
        QCOMPARE(image("Image1(25)").pixel(0, 0), qRgb(25, 0, 0));
        auto& scroll = part<QScrollBar>("VScroll1");
        QVERIFY(scroll.isVisible() && part("Picture1").y() == 0);
        QTest::keyClick(&part("List1"), Qt::Key_Home);
        QTest::keyClick(&part("List1"), Qt::Key_End);
        QCOMPARE(part("Picture1").y(), -scroll.value());
        const QPoint place = part("Border(25)").mapTo(&part("Picture2"), QPoint());
        QVERIFY(part("Picture2").rect().contains(QRect(place, QSize(85, 85))));
        openIn("Leeg");
        QCOMPARE(text("CounterLabel"), "0 Afbeeldingen");
        QVERIFY(!part("VScroll1").isVisible() && !has("Image1(0)"));
    }

    void ThumbnailAndLineAreSelectedTogether() {
        press("Image1(2)");
        QCOMPARE(outline("Border(2)"), yellow);
        QCOMPARE(part<QListWidget>("List1").currentRow(), 2);
        QCOMPARE(text("CounterLabel"), "c.bmp");
        clickLine("List1", 0);
        QCOMPARE(outline("Border(2)"), black);
        QCOMPARE(outline("Border(0)"), yellow);
        QCOMPARE(text("Label1"), "300 x 200 Pixels");
    }

    void ALargePictureIsCutDownToTheViewInEachDirection() {
        clickLine("List1", 2);
        menu("Help");
        QVERIFY(part("HelpPic").isVisible() && !part("Picture1").isVisible());
        comparePictures(image("HelpPic"), plain(590, 440, RGB(0, 255, 0)));
        clickLine("List1", 1);
        QCOMPARE(image("HelpPic").pixel(19, 29), qRgb(0, 0, 255));
        QCOMPARE(image("HelpPic").pixel(20, 30), qRgb(40, 40, 40));
        QCOMPARE(part<QAction>("Help").text(), "T&umbnails");
        menu("Help");
        QVERIFY(!part("HelpPic").isVisible() && part("Picture1").isVisible());
    }

    void TheWholeDesignBecomesThePictureInItsOrientation_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<ColorRef>("colour");
        QTest::newRow("lying") << 0 << QSize(640, 440) << RGB(255, 0, 0);
        QTest::newRow("upright, by a double click") << 1 << QSize(440, 640) << RGB(0, 0, 255);
        QTest::newRow("square") << 2 << QSize(440, 640) << RGB(0, 255, 0);
        QTest::newRow("damaged: the one before") << 3 << QSize(640, 440) << RGB(255, 0, 0);
        QTest::newRow("none: the last of the sheet") << -1 << QSize(640, 440) << RGB(9, 9, 9);
    }
    void TheWholeDesignBecomesThePictureInItsOrientation() {
        QFETCH(int, row);
        QFETCH(QSize, size);
        QFETCH(ColorRef, colour);
        const QImage before = design_->Pic().Image();
        if (row == 3) {
            press("Image1(0)");
        }
        if (row >= 0 && row != 1) {
            clickLine("List1", row);
        }
        if (row == 1) {
            QTest::mouseDClick(&part("Image1(1)"), Qt::LeftButton);
        } else {
            press("OkKnop");
        }
        QVERIFY(!form_->isVisible() && design_->Gewijzigd);
        comparePictures(design_->Pic().Image(), plain(size.width(), size.height(), colour));
        QCOMPARE(design_->isLandscape(), size.width() > size.height());
        PixelSurface undo(size.width(), size.height());
        undo.setPicture(before);
        comparePictures(design_->UndoPic().Image(), undo.Image());
    }

    void WithoutAnyPictureTheDesignStays() {
        const QImage before = design_->Pic().Image();
        openIn("Leeg");
        menu("ToolsWallpaper");
        QVERIFY(wallpapers_.isEmpty());
        press("OkKnop");
        QVERIFY(!form_->isVisible());
        comparePictures(design_->Pic().Image(), before);
    }

    void TheSelectedPictureGoesToTheDesktopWhole() {
        clickLine("List1", 0);
        menu("ToolsWallpaper");
        QCOMPARE(wallpapers_.size(), 1);
        comparePictures(wallpapers_.first(), plain(300, 200, RGB(255, 0, 0)));
        menu("ToolsExit");
        QVERIFY(!form_->isVisible());
    }
};

KAART_TEST(DialogformTest)
#include "DialogformTest.moc"
