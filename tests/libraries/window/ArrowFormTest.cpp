#include "libraries/window/ArrowForm.h"
#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>

using namespace kaart;

class ArrowFormTest : public QObject {
    Q_OBJECT

    static void press(const ArrowForm& form, const char* button) {
        QTest::mouseClick(&control<VistaButton>(form, button), Qt::LeftButton);
    }

private slots:
    void APickedPictureFloatsInTheChosenSize_data() {
        QTest::addColumn<int>("option");
        QTest::newRow("large") << 0;
        QTest::newRow("small") << 1;
    }
    void APickedPictureFloatsInTheChosenSize() {
        QFETCH(int, option);
        const QString data = qEnvironmentVariable("KAART_SOURCE") + "/data";
        Design design(ProgramFolders{data, data});
        QSignalSpy hints(&design, &Design::hintChanged);
        ArrowForm form(design);
        form.show();
        control<QScrollBar>(form, "HScroll1").setValue(6);
        QTest::mouseClick(&control<QWidget>(form, "Pic"), Qt::LeftButton, {}, QPoint(250, 40));
        press(form, "RotatieKnop");
        press(form, "MirrowKnop");
        QTest::mouseClick(&control<QRadioButton>(form, "Option1", option), Qt::LeftButton, {},
                          QPoint(8, 8));
        const QImage views[] = {control<SurfaceView>(form, "Picture1").Image(),
                                control<SurfaceView>(form, "MiniPic").Image()};
        const QImage luxembourg = LoadPicture(data + "/Data/Arrows.arr")->copy(200, 600, 100, 100);
        comparePictures(views[0], luxembourg.transformed(QTransform().rotate(90))
                                      .mirrored(true, false)
                                      .convertToFormat(QImage::Format_RGB32));
        press(form, "ExportKnop");
        QVERIFY(!form.isVisible());
        comparePictures(design.ClipPic.Image(), views[option]);
        QVERIFY(design.ClipPic.Visible);
        QCOMPARE(design.TekenModus, 50);
        QCOMPARE(hints.last().first().toString(),
                 "Beweeg de afbeelding met de muis, rechts klikken is plaatsen.");
    }

    void WithoutASheetTheWindowOpensEmpty() {
        Design design(ProgramFolders{"/nowhere", "/nowhere"});
        Answer answer;
        answer.press(QMessageBox::Ok);
        ArrowForm form(design);
        form.show();
        QCOMPARE(answer.seen(), QStringList("Pijlen, Vlaggen en Pins|Fout bij het laden van de "
                                            "afbeeldingen!"));
        press(form, "ExportKnop");
        QVERIFY(!form.isVisible());
        QVERIFY(!design.ClipPic.Visible);
        QCOMPARE(design.TekenModus, 999);
    }
};

KAART_TEST(ArrowFormTest)
#include "ArrowFormTest.moc"
