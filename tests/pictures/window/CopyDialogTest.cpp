#include "pictures/window/CopyDialog.h"
#include "tests/support/FormTest.h"

using namespace kaart;

namespace {

/// A blue picture whose left half is red.
QImage flag(int width, int height) {
    PixelSurface picture(width, height, RGB(0, 0, 255));
    picture.PaintPicture(plain(width / 2, height, RGB(255, 0, 0)), 0, 0);
    return picture.Image();
}

} // namespace

class CopyDialogTest : public FormTest<CopyDialog> {
    Q_OBJECT

    void pick(const char* name) const { clickLine("List1", name); }
    void select(const QRect& box) const {
        design_->Layer.Left = box.left();
        design_->Layer.Top = box.top();
        design_->SelectieBreedte = box.width();
        design_->SelectieHoogte = box.height();
    }
    void place() {
        press("ExportKnop");
        QVERIFY(!form_->isVisible());
        form_->show();
    }

private slots:
    void init() {
        begin();
        write("breed.BMP", flag(100, 50));
        write("Hoog.gif", flag(50, 100));
        write("vierkant.jpg", flag(60, 60));
        write("overig.png", flag(9, 9));
        write("Map/een.bmp", flag(4, 4));
        write("kapot.bmp", "BM");
        open();
    }

    void FoldersShowTheirPictures() {
        QCOMPARE(lines("List1"),
                 QStringList({"breed.BMP", "Hoog.gif", "kapot.bmp", "vierkant.jpg"}));
        QCOMPARE(text("Label1"), "4 Afbeeldingen");
        auto& folders = part<QListWidget>("Dir1");
        const auto enter = [&](const QString& name) {
            folders.setCurrentItem(folders.findItems(name, Qt::MatchExactly).value(0));
            QTest::keyClick(&folders, Qt::Key_Return);
        };
        enter("Map");
        QCOMPARE(lines("List1"), QStringList("een.bmp"));
        QCOMPARE(text("Label1"), "1 Afbeeldingen");
        pick("een.bmp");
        QCOMPARE(text("Label2"), "4 x 4 Pixels");
        enter(QDir(root_->path()).dirName());
        QCOMPARE(lines("List1").size(), 4);
        QVERIFY(form_->isVisible());
    }

    void ThePreviewHasThePicturesShape() {
        const auto check = [this](const char* name, const QSize& preview, const char* size) {
            pick(name);
            QCOMPARE(text("Label2"), size);
            comparePictures(image("Image1"), flag(preview.width(), preview.height()));
        };
        check("breed.BMP", {168, 110}, "100 x 50 Pixels");
        check("Hoog.gif", {110, 168}, "50 x 100 Pixels");
        check("vierkant.jpg", {168, 168}, "60 x 60 Pixels");
    }

    void ThePictureIsStretchedIntoTheSelectionAndCutOffAtTheEdge() {
        select({430, 600, 30, 60});
        pick("breed.BMP");
        pick("kapot.bmp");
        place();
        PixelSurface expected(440, 640);
        expected.PaintPicture(flag(30, 60), 430, 600);
        comparePictures(design_->Pic().Image(), expected.Image());
        select({20, 30, 30, 60});
        place();
        comparePictures(design_->UndoPic().Image(), expected.Image());
        expected.PaintPicture(flag(30, 60), 20, 30);
        comparePictures(design_->Pic().Image(), expected.Image());
    }

    void WithoutAPictureNothingChanges() {
        select({0, 0, 50, 50});
        design_->change([](PixelSurface& pic) { pic.Line(0, 0, 99, 99, black); });
        const QImage before = design_->Pic().Image();
        place();
        pick("kapot.bmp");
        place();
        pick("breed.BMP");
        press("CancelKnop");
        comparePictures(design_->Pic().Image(), before);
        QVERIFY(!form_->isVisible());
    }
};

KAART_TEST(CopyDialogTest)
#include "CopyDialogTest.moc"
