#include "generators/window/PolyGonForm.h"

#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/GraphicsCalls.h"
#include "generators/Polygon.h"
#include "tests/support/Answer.h"
#include "tests/support/Drag.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QComboBox>
#include <QLabel>

using namespace kaart;

class PolyGonFormTest : public QObject {
    Q_OBJECT

    Design design_{ProgramFolders{}};
    std::unique_ptr<PolyGonForm> form_;
    PixelSurface expected_;

    SurfaceView& picture() { return control<SurfaceView>(*form_, "Picture1"); }
    void press(const char* button) {
        QTest::mouseClick(&control<VistaButton>(*form_, button), Qt::LeftButton);
    }
    void expect(int pen, float turn, float cx, float cy, float radius, int sides) {
        expected_.DrawWidth = pen;
        RPolygoneRegulier(expected_, turn, 1, cx, cy, radius, sides, black);
    }

private slots:
    void init() {
        form_ = std::make_unique<PolyGonForm>(design_);
        form_->show();
        expected_ = PixelSurface(450, 400);
        design_.ClipPic.Visible = false;
    }
    void cleanup() { form_.reset(); }

    void DrawnAndFilledPolygonsAreHandedOver() {
        drag(picture(), {20, 30}, {119, 31}); // a square of 100, wherever the mouse goes vertically
        QCOMPARE(control<QLabel>(*form_, "Label2").text(), QStringLiteral("Grootte : 100"));
        expect(2, 0, 70, 80, 47, 6);
        control<QComboBox>(*form_, "Combo1").setCurrentText("5");
        control<QComboBox>(*form_, "Combo2").setCurrentText("4");
        control<QComboBox>(*form_, "Combo3").setCurrentText("1.25");
        drag(picture(), {60, 40}, {260, 10});
        expect(4, 1.25F, 160.5F, 140.5F, 97.5F, 5);
        QTest::mouseClick(&picture(), Qt::RightButton, {}, {30, 80});
        QTest::mouseClick(&control<QWidget>(*form_, "lblColor", 16), Qt::LeftButton);
        QTest::mouseClick(&picture(), Qt::RightButton, {}, {160, 140});
        expected_.FillColor = 0x0000FFFF;
        FloodFill(expected_, 30, 80, black);
        expected_.FillColor = 0x000000FF;
        FloodFill(expected_, 160, 140, black);
        comparePictures(picture().Image(), expected_.Image());
        design_.setTekenModus(3);
        press("ExportKnop");
        QVERIFY(!form_->isVisible() && design_.ClipPic.Visible);
        QCOMPARE(design_.TekenModus, 3);
        comparePictures(design_.ClipPic.Image(), expected_.Image().copy(60, 40, 201, 201));
    }

    void AClickMakesATinyPolygonUnderTheMouseAndResetTakesAllAway() {
        QTest::mouseClick(&picture(), Qt::LeftButton, {}, {300, 50});
        QCOMPARE(control<QWidget>(*form_, "SelectShape").geometry(), QRect(300, 50, 1, 1));
        expect(2, 0, 300.5F, 50.5F, -2.5F, 6);
        comparePictures(picture().Image(), expected_.Image());
        press("ResetKnop");
        comparePictures(picture().Image(), PixelSurface(450, 400).Image());
        Answer answer;
        press("ExportKnop");
        QCOMPARE(answer.seen(),
                 QStringList("Polygon Maker|Selecteer met ingedrukte linkermuisknop een rechthoek\n"
                             "ter grootte van het object, of klik op Annuleren."));
        QVERIFY(form_->isVisible() && !design_.ClipPic.Visible);
    }
};

KAART_TEST(PolyGonFormTest)
#include "PolyGonFormTest.moc"
