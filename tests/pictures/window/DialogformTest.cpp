#include "pictures/window/Dialogform.h"
#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace kaart;

namespace {

constexpr ColorRef yellow = RGB(255, 255, 0);

QImage plain(int width, int height, ColorRef colour) {
    return PixelSurface(width, height, colour).Image();
}

} // namespace

class DialogformTest : public QObject {
    Q_OBJECT

    QTemporaryDir root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<Dialogform> form_;
    QList<QImage> wallpapers_;

    QListWidget& list(const char* name) const { return control<QListWidget>(*form_, name); }
    QString label(const char* name) const { return control<QLabel>(*form_, name).text(); }
    QWidget* part(const char* name) const {
        return form_->findChild<QWidget*>(QLatin1String(name));
    }
    QImage shown(const char* name) const { return part(name)->property("Image").value<QImage>(); }
    ColorRef outline(const char* name) const {
        const QColor colour = part(name)->palette().color(QPalette::WindowText);
        return RGB(colour.red(), colour.green(), colour.blue());
    }
    void menu(const char* name) const {
        form_->findChild<QAction*>(QLatin1String(name))->trigger();
    }
    void press(const char* button) const { QTest::mouseClick(part(button), Qt::LeftButton); }
    void click(const char* thumbnail) const { QTest::mouseClick(part(thumbnail), Qt::LeftButton); }
    void pickLine(int row) const {
        QTest::mouseClick(list("List1").viewport(), Qt::LeftButton, {},
                          list("List1").visualItemRect(list("List1").item(row)).center());
    }
    void write(const QString& name, const QImage& picture) const {
        QVERIFY(SavePicture(picture, root_.filePath(name)));
    }
    void open(const QString& folder) {
        design_->pictureFolder = root_.filePath(folder);
        form_ = std::make_unique<Dialogform>(
            *design_, nullptr, [this](QWidget*, const QImage& picture) { wallpapers_ << picture; });
        form_->show();
        QTRY_VERIFY(!part("Bar")->isVisible());
    }

private slots:
    void initTestCase() {
        QVERIFY(QDir(root_.path()).mkdir("Leeg") && QDir(root_.path()).mkdir("Veel"));
        write("a rood.bmp", plain(300, 200, RGB(255, 0, 0)));
        write("b blauw.bmp", plain(20, 30, RGB(0, 0, 255)));
        write("c.bmp", plain(700, 700, RGB(0, 255, 0)));
        QFile broken(root_.filePath("d stuk.jpg"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("\xFF\xD8\xFF\xE0") == 4);
        write("e.bmp", plain(3, 3, RGB(1, 2, 3)));
        write("f.gif", plain(4, 2, RGB(9, 9, 9)));
        for (int i = 0; i < 26; ++i) {
            write(QStringLiteral("Veel/%1.bmp").arg(i, 2, 10, QLatin1Char('0')),
                  plain(4, 4, RGB(i, 0, 0)));
        }
    }
    void init() {
        design_ = std::make_unique<Design>(ProgramFolders{root_.path(), root_.path()});
        design_->change([](PixelSurface& pic) { pic.Line(9, 9, 99, 99, RGB(250, 0, 0)); });
        wallpapers_.clear();
        open(QString());
    }
    void cleanup() { form_.reset(); }

    void TheSheetHasFiveThumbnailsToARow() {
        QCOMPARE(label("CounterLabel"), QStringLiteral("6 / 6 Afbeeldingen"));
        QCOMPARE(part("Image1(0)")->geometry(), QRect(13, 13, 90, 66));
        QCOMPARE(part("Border(0)")->geometry(), QRect(11, 11, 95, 71));
        QCOMPARE(part("Image1(1)")->geometry(), QRect(133, 13, 66, 90));
        QCOMPARE(part("Image1(2)")->geometry(), QRect(253, 13, 80, 80));
        QCOMPARE(part("Image1(5)")->pos(), QPoint(13, 123));
        QCOMPARE(part("Image1(1)")->toolTip(), QStringLiteral(" b blauw.bmp "));
        comparePictures(shown("Image1(1)"), plain(66, 90, RGB(0, 0, 255)));
        comparePictures(shown("Image1(3)"), shown("Image1(2)"));
        QVERIFY(!part("VScroll1")->isVisible());
    }

    void AnotherFolderReplacesTheSheet() {
        QListWidget& folders = list("Dir1");
        folders.setCurrentItem(folders.findItems("Veel", Qt::MatchExactly).value(0));
        folders.setFocus();
        QTest::keyClick(&folders, Qt::Key_Return);
        QCOMPARE(label("CounterLabel"), QStringLiteral("26 Afbeeldingen"));
        QVERIFY(part("Image1(0)") == nullptr && part("Bar")->isVisible());
        QTRY_VERIFY(!part("Bar")->isVisible());
        QCOMPARE(shown("Image1(25)").pixel(0, 0), qRgb(25, 0, 0));
        auto& scroll = control<QScrollBar>(*form_, "VScroll1");
        QVERIFY(scroll.isVisible() && part("Picture1")->y() == 0);
        QTest::keyClick(&list("List1"), Qt::Key_Home);
        QTest::keyClick(&list("List1"), Qt::Key_End);
        QCOMPARE(part("Picture1")->y(), -scroll.value());
        QVERIFY(part("Picture2")
                    ->rect()
                    .contains(QRect(part("Border(25)")->mapTo(part("Picture2"), QPoint()),
                                    QSize(85, 85))));
        open("Leeg");
        QCOMPARE(label("CounterLabel"), QStringLiteral("0 Afbeeldingen"));
        QVERIFY(!part("VScroll1")->isVisible() && part("Image1(0)") == nullptr);
    }

    void ThumbnailAndLineAreSelectedTogether() {
        click("Image1(2)");
        QCOMPARE(outline("Border(2)"), yellow);
        QCOMPARE(list("List1").currentRow(), 2);
        QCOMPARE(label("CounterLabel"), QStringLiteral("c.bmp"));
        pickLine(0);
        QCOMPARE(outline("Border(2)"), black);
        QCOMPARE(outline("Border(0)"), yellow);
        QCOMPARE(label("Label1"), QStringLiteral("300 x 200 Pixels"));
    }

    void ALargePictureIsCutDownToTheViewInEachDirection() {
        pickLine(2);
        menu("Help");
        QVERIFY(part("HelpPic")->isVisible() && !part("Picture1")->isVisible());
        comparePictures(shown("HelpPic"), plain(590, 440, RGB(0, 255, 0)));
        pickLine(1);
        QCOMPARE(shown("HelpPic").pixel(19, 29), qRgb(0, 0, 255));
        QCOMPARE(shown("HelpPic").pixel(20, 30), qRgb(40, 40, 40));
        QCOMPARE(form_->findChild<QAction*>("Help")->text(), QStringLiteral("T&umbnails"));
        menu("Help");
        QVERIFY(!part("HelpPic")->isVisible() && part("Picture1")->isVisible());
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
            click("Image1(0)");
        }
        if (row >= 0 && row != 1) {
            pickLine(row);
        }
        if (row == 1) {
            QTest::mouseDClick(part("Image1(1)"), Qt::LeftButton);
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
        open("Leeg");
        menu("ToolsWallpaper");
        QVERIFY(wallpapers_.isEmpty());
        press("OkKnop");
        QVERIFY(!form_->isVisible());
        comparePictures(design_->Pic().Image(), before);
    }

    void TheSelectedPictureGoesToTheDesktopWhole() {
        pickLine(0);
        menu("ToolsWallpaper");
        QCOMPARE(wallpapers_.size(), 1);
        comparePictures(wallpapers_.first(), plain(300, 200, RGB(255, 0, 0)));
        menu("ToolsExit");
        QVERIFY(!form_->isVisible());
    }
};

KAART_TEST(DialogformTest)
#include "DialogformTest.moc"
