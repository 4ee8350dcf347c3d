#include "generators/window/BlokkenForm.h"

#include "controls/ControlTable.h"
#include "controls/Fader.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "generators/Blokken.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTimer>

using namespace kaart;

class BlokkenFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Design> design_;
    std::unique_ptr<BlokkenForm> form_;
    PixelSurface start_;

    void press(const char* name) {
        QTest::mouseClick(&control<VistaButton>(*form_, name), Qt::LeftButton);
    }
private slots:
    void init() {
        std::mt19937 random(9);
        design_ = std::make_unique<Design>(ProgramFolders{});
        design_->open(randomPicture(440, 640, random), QString());
        start_ = design_->Pic();
        form_ = std::make_unique<BlokkenForm>(*design_);
        form_->show();
    }
    void cleanup() { form_.reset(); }

    void OperationsAddUpUntilReset() {
        control<Fader>(*form_, "Hscroll2").setValue(73);
        QCOMPARE(control<QLabel>(*form_, "Label4").text(), QStringLiteral("Transparantie (73)"));
        press("TransparantKnop");
        SilentRhythm silent;
        PixelSurface expected = start_;
        FadePicture(expected, 73, silent);
        press("KaderKnop");
        BevelPicture(expected, 10, 0, 50);
        comparePictures(design_->Pic().Image(), expected.Image());
        comparePictures(design_->UndoPic().Image(), start_.Image()); // kept: none by KaderKnop
        control<QCheckBox>(*form_, "inoutchk").click();
        control<QComboBox>(*form_, "BevSize").setCurrentText("20");
        control<QComboBox>(*form_, "BevLight").setCurrentText("100");
        press("KaderKnop");
        BevelPicture(expected, 20, 1, 100);
        comparePictures(design_->Pic().Image(), expected.Image());
        press("ResetKnop");
        comparePictures(design_->Pic().Image(), start_.Image());
    }

    void FadingGoesOnWhenTheWindowGoes() {
        bool busy = false;
        QTimer::singleShot(0, this, [&] {
            busy = design_->Voortgang.Busy && design_->Voortgang.Visible;
            form_.reset();
        });
        control<VistaButton>(*form_, "TransparantKnop").click();
        QVERIFY(busy && !design_->Voortgang.Busy && !design_->Voortgang.Visible);
        SilentRhythm silent;
        FadePicture(start_, 50, silent);
        comparePictures(design_->Pic().Image(), start_.Image());
    }
};

KAART_TEST(BlokkenFormTest)
#include "BlokkenFormTest.moc"
