#include "libraries/window/BorderForm.h"
#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "libraries/ApplyMask.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace kaart;

class BorderFormTest : public QObject {
    Q_OBJECT

    const QString data_ = qEnvironmentVariable("KAART_SOURCE") + "/data";
    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<BorderForm> form_;

    QListWidget& list() const { return control<QListWidget>(*form_, "List1"); }
    QScrollBar& bar() const { return control<QScrollBar>(*form_, "VScroll1"); }
    QString counter() const { return control<QLabel>(*form_, "Label3").text(); }
    QImage back() const { return control<SurfaceView>(*form_, "BackPic").Image(); }
    void press(const char* button) const {
        QTest::mouseClick(&control<VistaButton>(*form_, button), Qt::LeftButton);
    }
    void click(int row) const {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().item(row)).center());
    }
    /// A plain picture; its content is a BMP, since that is what the gate goes by.
    void write(const QString& path, int width, int height, QRgb colour) const {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(colour);
        QVERIFY(QDir(root_->path()).mkpath(QFileInfo(path).path()));
        QVERIFY(SavePicture(picture, root_->filePath(path)));
    }
    void useOwnPictures() { design_ = std::make_unique<Design>(ProgramFolders{data_, data_}); }
    void open(int kind) {
        design_->RandSoort = kind;
        form_ = std::make_unique<BorderForm>(*design_);
        form_->show();
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        write("Frames/Frame-001.jpg", 30, 30, 0xFFFF0000);
        write("Frames/frame-002.JPG", 90, 60, 0xFF00FF00);
        write("Frames/Frame-004.jpg", 20, 50, 0xFF0000FF);
        QFile broken(root_->filePath("Frames/Frame-003.jpg"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("BM") == 2);
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
    }
    void cleanup() { form_.reset(); }

    void EachKindShowsItsOwnLibrary() {
        useOwnPictures();
        const char* libraries[][2] = {{"Frame invoegen", "Frames/Frame"},
                                      {"Template invoegen", "Templates/Template"},
                                      {"Achtergrond invoegen", "Achtergronden/Achtergrond"},
                                      {"Masker invoegen", "Maskers/Masker"}};
        for (int kind = 1; kind <= 4; ++kind) {
            const auto [title, first] = libraries[kind - 1];
            open(kind);
            QCOMPARE(form_->windowTitle(), QLatin1String(title));
            comparePictures(back(), *LoadPicture(data_ + '/' + first + "-001.jpg"));
            QCOMPARE(back().width() + back().height(), 1080);
            QCOMPARE(bar().maximum(), list().count());
            QCOMPARE(counter(), QStringLiteral("%1 Afbeeldingen").arg(list().count()));
        }
    }

    void BrowsingShowsThePictureAndItsOrientation() {
        open(1);
        const auto check = [this](QRgb colour, const QSize& preview, const char* orientation) {
            QCOMPARE(back().pixel(0, 0), colour);
            const QImage shown = control<SurfaceView>(*form_, "Picture1").Image();
            QCOMPARE(shown.size(), preview);
            QCOMPARE(shown.pixel(preview.width() - 1, preview.height() - 1), colour);
            QCOMPARE(design_->OntwerpRichting, QLatin1String(orientation));
        };
        check(0xFFFF0000, {180, 260}, "Staand");
        bar().setValue(2);
        check(0xFF00FF00, {260, 180}, "Liggend");
        QCOMPARE(counter(), "2 / 4 Afbeeldingen");
        click(3);
        check(0xFF0000FF, {180, 260}, "Staand");
        QCOMPARE(bar().value(), 4);
        bar().setValue(2);
        click(3); // selected already
        QCOMPARE(bar().value(), 4);
        Answer answer;
        answer.press(QMessageBox::Ok);
        click(2);
        QCOMPARE(answer.seen(), QStringList("Frame invoegen|De afbeelding 'Frame-003.jpg' kan niet "
                                            "worden gelezen."));
        check(0xFF0000FF, {180, 260}, "Staand");
        bar().setValue(2);
        press("CancelKnop");
        QCOMPARE(design_->OntwerpRichting, "Liggend");
        QCOMPARE(design_->Pic().Image().size(), QSize(440, 640));
        QVERIFY(!design_->Gewijzigd);
    }

    void AFrameTakesTheDesignsPlace() {
        useOwnPictures();
        design_->change([](PixelSurface& pic) { pic.PSet(3, 3, black); });
        const QImage before = design_->Pic().Image().copy(0, 0, 440, 440);
        open(1);
        bar().setValue(2);
        form_->grab(); // hidden controls get their pending sizes, too
        press("ExportKnop");
        QVERIFY(!form_->isVisible());
        const QImage frame = *LoadPicture(data_ + "/Frames/Frame-002.jpg");
        comparePictures(design_->Pic().Image(), frame);
        comparePictures(design_->UndoPic().Image().copy(0, 0, 440, 440), before);
        QVERIFY(design_->Gewijzigd);
    }

    void AMaskLeavesTheOrientationOfTheDesign() {
        useOwnPictures();
        design_->change(
            [](PixelSurface& pic) { pic.Line(0, 0, 439, 639, RGB(1, 2, 3), LineMode::FilledBox); });
        PixelSurface expected = design_->Pic();
        const QImage before = expected.Image();
        SilentRhythm silent;
        ApplyMask(expected, *LoadPicture(data_ + "/Maskers/Masker-001.jpg"), silent);
        open(4);
        bool tried = false;
        connect(design_.get(), &Design::picChanged, form_.get(), [&] {
            if (!std::exchange(tried, true)) { // a click that comes while the rows go by
                press("CancelKnop");
                form_->close();
                QVERIFY(form_->isVisible());
            }
        });
        press("ExportKnop");
        QVERIFY(tried && !form_->isVisible());
        comparePictures(design_->Pic().Image(), expected.Image());
        comparePictures(design_->UndoPic().Image(), before);
    }

    void DeletingAsksAndTakesOneFile() {
        open(1);
        press("DelKnop"); // no line is selected
        click(1);
        Answer answer;
        answer.press(QMessageBox::No).press(QMessageBox::Yes);
        press("DelKnop");
        QCOMPARE(list().count(), 4);
        press("DelKnop");
        QCOMPARE(answer.seen(),
                 QStringList(2, "Delete|Wil je 'frame-002.JPG' voorgoed verwijderen?"));
        QCOMPARE(QDir(root_->filePath("Frames")).entryList(QDir::Files),
                 QStringList({"Frame-001.jpg", "Frame-003.jpg", "Frame-004.jpg"}));
        QCOMPARE(list().count(), 3);
        QCOMPARE(counter(), "3 Afbeeldingen");
        QCOMPARE(bar().maximum(), 4);
        QCOMPARE(control<SurfaceView>(*form_, "Picture1").Image().pixel(9, 9), 0xFFFFFFFF);
        bar().setValue(4); // there is no fourth one any more
        QCOMPARE(back().pixel(0, 0), 0xFF00FF00);
        bar().setValue(3);
        QCOMPARE(back().pixel(0, 0), 0xFF0000FF);
    }

    void ALibraryWithoutPicturesSaysSo() {
        Answer answer;
        answer.press(QMessageBox::Ok);
        open(2);
        QVERIFY(answer.seen().value(0).startsWith(
            "Template invoegen|Er staan geen afbeeldingen in de map\n"));
        press("ExportKnop");
        press("DelKnop");
        QVERIFY(form_->isVisible() && !design_->Gewijzigd);
        QVERIFY(QFile::remove(root_->filePath("Frames/Frame-001.jpg")));
        open(1);
        QCOMPARE(counter(), "1 / 3 Afbeeldingen");
        bar().setValue(3); // smaller than the design
        press("ExportKnop");
        QImage expected(440, 640, QImage::Format_RGB32);
        expected.fill(0xFF0000FF);
        comparePictures(design_->Pic().Image(), expected);
    }
};

KAART_TEST(BorderFormTest)
#include "BorderFormTest.moc"
