#include "libraries/window/ArrowForm.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class ArrowFormTest : public FormTest<ArrowForm> {
    Q_OBJECT

private slots:
    void APickedPictureFloatsInTheChosenSize_data() {
        QTest::addColumn<int>("option");
        QTest::newRow("large") << 0;
        QTest::newRow("small") << 1;
    }
    void APickedPictureFloatsInTheChosenSize() {
        QFETCH(int, option);
        begin(shippedFiles());
        QSignalSpy hints(design_.get(), &Design::hintChanged);
        open();
        part<QScrollBar>("HScroll1").setValue(6);
        QTest::mouseClick(&part("Pic"), Qt::LeftButton, {}, QPoint(250, 40));
        press("RotatieKnop");
        press("MirrowKnop");
        QTest::mouseClick(&part("Option1", option), Qt::LeftButton, {}, QPoint(8, 8));
        const QImage views[] = {image("Picture1"), image("MiniPic")};
        const QImage luxembourg =
            LoadPicture(shippedFiles() + "/Data/Arrows.arr")->copy(200, 600, 100, 100);
        comparePictures(views[0], luxembourg.transformed(QTransform().rotate(90))
                                      .mirrored(true, false)
                                      .convertToFormat(QImage::Format_RGB32));
        press("ExportKnop");
        QVERIFY(!form_->isVisible());
        comparePictures(design_->ClipPic.Image(), views[option]);
        QVERIFY(design_->ClipPic.Visible);
        QCOMPARE(design_->TekenModus, 50);
        QCOMPARE(hints.last().first().toString(),
                 "Beweeg de afbeelding met de muis, rechts klikken is plaatsen.");
    }

    void WithoutASheetTheWindowOpensEmpty() {
        begin();
        Answer answer;
        answer.press(QMessageBox::Ok);
        open();
        QCOMPARE(answer.seen(), QStringList("Pijlen, Vlaggen en Pins|Fout bij het laden van de "
                                            "afbeeldingen!"));
        press("ExportKnop");
        QVERIFY(!form_->isVisible());
        QVERIFY(!design_->ClipPic.Visible);
        QCOMPARE(design_->TekenModus, 999);
    }
};

KAART_TEST(ArrowFormTest)
#include "ArrowFormTest.moc"
