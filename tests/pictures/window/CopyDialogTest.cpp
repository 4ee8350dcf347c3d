#include "pictures/window/CopyDialog.h"
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
#include <QTemporaryDir>

using namespace kaart;

class CopyDialogTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<CopyDialog> dialog_;

    QListWidget& list(const char* name) const { return control<QListWidget>(*dialog_, name); }
    QString label(const char* name) const { return control<QLabel>(*dialog_, name).text(); }
    QStringList names() const {
        QStringList names;
        for (int row = 0; row < list("List1").count(); ++row) {
            names << list("List1").item(row)->text();
        }
        return names;
    }
    void pick(const char* name) const {
        auto* item = list("List1").findItems(QLatin1String(name), Qt::MatchExactly).value(0);
        QTest::mouseClick(list("List1").viewport(), Qt::LeftButton, {},
                          list("List1").visualItemRect(item).center());
    }
    void press(const char* button) const {
        QTest::mouseClick(&control<VistaButton>(*dialog_, button), Qt::LeftButton);
    }
    void select(const QRect& box) const {
        design_->Layer.Left = box.left();
        design_->Layer.Top = box.top();
        design_->SelectieBreedte = box.width();
        design_->SelectieHoogte = box.height();
    }
    /// A blue picture whose left half is red.
    void write(const QString& name, int width, int height) const {
        PixelSurface picture(width, height, RGB(0, 0, 255));
        const int half = width / 2;
        picture.Line(0, 0, half - 1, height - 1, RGB(255, 0, 0), LineMode::FilledBox);
        QVERIFY(SavePicture(picture.Image(), root_->filePath(name)));
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(root_->path()).mkdir("Map"));
        write("breed.BMP", 100, 50);
        write("Hoog.gif", 50, 100);
        write("vierkant.jpg", 60, 60);
        write("overig.png", 9, 9);
        write("Map/een.bmp", 4, 4);
        QFile broken(root_->filePath("kapot.bmp"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("BM") == 2);
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
        dialog_ = std::make_unique<CopyDialog>(*design_);
        dialog_->show();
    }
    void cleanup() { dialog_.reset(); }

    void FoldersShowTheirPictures() {
        QCOMPARE(names(), QStringList({"breed.BMP", "Hoog.gif", "kapot.bmp", "vierkant.jpg"}));
        QCOMPARE(label("Label1"), QStringLiteral("4 Afbeeldingen"));
        QListWidget& folders = list("Dir1");
        const auto enter = [&](const QString& name) {
            folders.setCurrentItem(folders.findItems(name, Qt::MatchExactly).value(0));
            QTest::keyClick(&folders, Qt::Key_Return);
        };
        enter("Map");
        QCOMPARE(names(), QStringList("een.bmp"));
        QCOMPARE(label("Label1"), QStringLiteral("1 Afbeeldingen"));
        pick("een.bmp");
        QCOMPARE(label("Label2"), QStringLiteral("4 x 4 Pixels"));
        enter(QDir(root_->path()).dirName());
        QCOMPARE(names().size(), 4);
        QVERIFY(dialog_->isVisible());
    }

    void ThePreviewHasThePicturesShape() {
        const auto check = [this](const char* name, const QSize& preview, const char* text) {
            pick(name);
            QCOMPARE(label("Label2"), QLatin1String(text));
            const QImage shown = control<SurfaceView>(*dialog_, "Image1").Image();
            QCOMPARE(shown.size(), preview);
            QCOMPARE(shown.pixel(preview.width() / 2 - 1, preview.height() - 1), 0xFFFF0000);
            QCOMPARE(shown.pixel(preview.width() / 2, 0), 0xFF0000FF);
        };
        check("breed.BMP", {168, 110}, "100 x 50 Pixels");
        check("Hoog.gif", {110, 168}, "50 x 100 Pixels");
        check("vierkant.jpg", {168, 168}, "60 x 60 Pixels");
    }

    void ThePictureIsStretchedIntoTheSelectionAndCutOffAtTheEdge() {
        select({430, 600, 30, 60});
        pick("breed.BMP");
        pick("kapot.bmp");
        press("ExportKnop");
        PixelSurface expected(440, 640);
        expected.Line(430, 600, 444, 659, RGB(255, 0, 0), LineMode::FilledBox);
        comparePictures(design_->Pic().Image(), expected.Image());
        dialog_->show();
        select({20, 30, 30, 60});
        press("ExportKnop");
        QVERIFY(!dialog_->isVisible());
        comparePictures(design_->UndoPic().Image(), expected.Image());
        expected.Line(20, 30, 34, 89, RGB(255, 0, 0), LineMode::FilledBox);
        expected.Line(35, 30, 49, 89, RGB(0, 0, 255), LineMode::FilledBox);
        comparePictures(design_->Pic().Image(), expected.Image());
    }

    void WithoutAPictureNothingChanges() {
        select({0, 0, 50, 50});
        design_->change([](PixelSurface& pic) { pic.Line(0, 0, 99, 99, black); });
        const QImage before = design_->Pic().Image();
        press("ExportKnop");
        dialog_->show();
        pick("kapot.bmp");
        press("ExportKnop");
        dialog_->show();
        pick("breed.BMP");
        press("CancelKnop");
        comparePictures(design_->Pic().Image(), before);
        QVERIFY(!dialog_->isVisible());
    }
};

KAART_TEST(CopyDialogTest)
#include "CopyDialogTest.moc"
