#include "generators/window/BlokkenForm.h"
#include "controls/Fader.h"
#include "generators/Blokken.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class BlokkenFormTest : public FormTest<BlokkenForm> {
    Q_OBJECT

    PixelSurface start_;

private slots:
    void init() {
        begin();
        std::mt19937 random(9);
        design_->open(randomPicture(440, 640, random), QString());
        start_ = design_->Pic();
        open();
    }

    void OperationsAddUpUntilReset() {
        part<Fader>("Hscroll2").setValue(73);
        QCOMPARE(text("Label4"), "Transparantie (73)");
        press("TransparantKnop");
        SilentRhythm silent;
        PixelSurface expected = start_;
        FadePicture(expected, 73, silent);
        press("KaderKnop");
        BevelPicture(expected, 10, 0, 50);
        comparePictures(design_->Pic().Image(), expected.Image());
        comparePictures(design_->UndoPic().Image(), start_.Image()); // kept: none by KaderKnop
        part<QCheckBox>("inoutchk").click();
        part<QComboBox>("BevSize").setCurrentText("20");
        part<QComboBox>("BevLight").setCurrentText("100");
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
        part<QAbstractButton>("TransparantKnop").click();
        QVERIFY(busy && !design_->Voortgang.Busy && !design_->Voortgang.Visible);
        SilentRhythm silent;
        FadePicture(start_, 50, silent);
        comparePictures(design_->Pic().Image(), start_.Image());
    }
};

KAART_TEST(BlokkenFormTest)
#include "BlokkenFormTest.moc"
