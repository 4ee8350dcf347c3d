#include "libraries/window/BorderForm.h"
#include "libraries/ApplyMask.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class BorderFormTest : public FormTest<BorderForm> {
    Q_OBJECT

    QScrollBar& bar() const { return part<QScrollBar>("VScroll1"); }
    QString counter() const { return text("Label3"); }
    QImage back() const { return image("BackPic"); }
    void click(int row) const { clickLine("List1", row); }
    void openKind(int kind) {
        design_->RandSoort = kind;
        open();
    }

private slots:
    void init() {
        begin();
        write("Frames/Frame-001.jpg", plain(30, 30, RGB(255, 0, 0)));
        write("Frames/frame-002.JPG", plain(90, 60, RGB(0, 255, 0)));
        write("Frames/Frame-003.jpg", "BM");
        write("Frames/Frame-004.jpg", plain(20, 50, RGB(0, 0, 255)));
    }

    void EachKindShowsItsOwnLibrary() {
        begin(shippedFiles());
        const char* libraries[][2] = {{"Frame invoegen", "Frames/Frame"},
                                      {"Template invoegen", "Templates/Template"},
                                      {"Achtergrond invoegen", "Achtergronden/Achtergrond"},
                                      {"Masker invoegen", "Maskers/Masker"}};
        for (int kind = 1; kind <= 4; ++kind) {
            const auto [title, first] = libraries[kind - 1];
            openKind(kind);
            QCOMPARE(form_->windowTitle(), title);
            comparePictures(back(), *LoadPicture(shippedFiles() + '/' + first + "-001.jpg"));
            QCOMPARE(back().width() + back().height(), 1080);
            QCOMPARE(bar().maximum(), static_cast<int>(lines("List1").size()));
            QCOMPARE(counter(), QString("%1 Afbeeldingen").arg(lines("List1").size()));
        }
    }

    void BrowsingShowsThePictureAndItsOrientation() {
        openKind(1);
        const auto check = [this](ColorRef colour, const QSize& preview, const char* orientation) {
            QCOMPARE(back().pixel(0, 0), toPixel(colour));
            comparePictures(image("Picture1"), plain(preview.width(), preview.height(), colour));
            QCOMPARE(design_->OntwerpRichting, orientation);
        };
        check(RGB(255, 0, 0), {180, 260}, "Staand");
        bar().setValue(2);
        check(RGB(0, 255, 0), {260, 180}, "Liggend");
        QCOMPARE(counter(), "2 / 4 Afbeeldingen");
        click(3);
        check(RGB(0, 0, 255), {180, 260}, "Staand");
        QCOMPARE(bar().value(), 4);
        bar().setValue(2);
        click(3); // selected already
        QCOMPARE(bar().value(), 4);
        Answer answer;
        answer.press(QMessageBox::Ok);
        click(2);
        QCOMPARE(answer.seen(), QStringList("Frame invoegen|De afbeelding 'Frame-003.jpg' kan niet "
                                            "worden gelezen."));
        check(RGB(0, 0, 255), {180, 260}, "Staand");
        bar().setValue(2);
        press("CancelKnop");
        QCOMPARE(design_->OntwerpRichting, "Liggend");
        QCOMPARE(design_->Pic().Image().size(), QSize(440, 640));
        QVERIFY(!design_->Gewijzigd);
    }

    void AFrameTakesTheDesignsPlace() {
        begin(shippedFiles());
        design_->change([](PixelSurface& pic) { pic.PSet(3, 3, black); });
        const QImage before = design_->Pic().Image().copy(0, 0, 440, 440);
        openKind(1);
        bar().setValue(2);
        form_->grab(); // hidden controls get their pending sizes, too
        press("ExportKnop");
        QVERIFY(!form_->isVisible());
        const QImage frame = *LoadPicture(shippedFiles() + "/Frames/Frame-002.jpg");
        comparePictures(design_->Pic().Image(), frame);
        comparePictures(design_->UndoPic().Image().copy(0, 0, 440, 440), before);
        QVERIFY(design_->Gewijzigd);
    }

    void AMaskLeavesTheOrientationOfTheDesign() {
        begin(shippedFiles());
        design_->change(
            [](PixelSurface& pic) { pic.Line(0, 0, 439, 639, RGB(1, 2, 3), LineMode::FilledBox); });
        PixelSurface expected = design_->Pic();
        const QImage before = expected.Image();
        SilentRhythm silent;
        ApplyMask(expected, *LoadPicture(shippedFiles() + "/Maskers/Masker-001.jpg"), silent);
        openKind(4);
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
        openKind(1);
        press("DelKnop"); // no line is selected
        click(1);
        Answer answer;
        answer.press(QMessageBox::No).press(QMessageBox::Yes);
        press("DelKnop");
        QCOMPARE(lines("List1").size(), 4);
        press("DelKnop");
        QCOMPARE(answer.seen(),
                 QStringList(2, "Delete|Wil je 'frame-002.JPG' voorgoed verwijderen?"));
        QCOMPARE(QDir(path("Frames")).entryList(QDir::Files),
                 QStringList({"Frame-001.jpg", "Frame-003.jpg", "Frame-004.jpg"}));
        QCOMPARE(lines("List1").size(), 3);
        QCOMPARE(counter(), "3 Afbeeldingen");
        QCOMPARE(bar().maximum(), 4);
        QCOMPARE(image("Picture1").pixel(9, 9), 0xFFFFFFFF);
        bar().setValue(4); // there is no fourth one any more
        QCOMPARE(back().pixel(0, 0), 0xFF00FF00);
        bar().setValue(3);
        QCOMPARE(back().pixel(0, 0), 0xFF0000FF);
    }

    void ALibraryWithoutPicturesSaysSo() {
        Answer answer;
        answer.press(QMessageBox::Ok);
        openKind(2);
        QVERIFY(answer.seen().value(0).startsWith(
            "Template invoegen|Er staan geen afbeeldingen in de map\n"));
        press("ExportKnop");
        press("DelKnop");
        QVERIFY(form_->isVisible() && !design_->Gewijzigd);
        QVERIFY(QFile::remove(path("Frames/Frame-001.jpg")));
        openKind(1);
        QCOMPARE(counter(), "1 / 3 Afbeeldingen");
        bar().setValue(3); // smaller than the design
        press("ExportKnop");
        comparePictures(design_->Pic().Image(), plain(440, 640, RGB(0, 0, 255)));
    }
};

KAART_TEST(BorderFormTest)
#include "BorderFormTest.moc"
