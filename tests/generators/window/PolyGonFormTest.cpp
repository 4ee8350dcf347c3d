#include "generators/window/PolyGonForm.h"
#include "design/surface/GraphicsCalls.h"
#include "generators/Polygon.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class PolyGonFormTest : public FormTest<PolyGonForm> {
    Q_OBJECT

    PixelSurface expected_;

    QWidget& picture() const { return part("Picture1"); }
    void expect(int pen, float turn, float cx, float cy, float radius, int sides) {
        expected_.DrawWidth = pen;
        RPolygoneRegulier(expected_, turn, 1, cx, cy, radius, sides, black);
    }

private slots:
    void init() {
        begin();
        open();
        expected_ = PixelSurface(450, 400);
    }

    void DrawnAndFilledPolygonsAreHandedOver() {
        drag(picture(), {20, 30}, {119, 31}); // a square of 100, wherever the mouse goes vertically
        QCOMPARE(text("Label2"), "Grootte : 100");
        expect(2, 0, 70, 80, 47, 6);
        part<QComboBox>("Combo1").setCurrentText("5");
        part<QComboBox>("Combo2").setCurrentText("4");
        part<QComboBox>("Combo3").setCurrentText("1.25");
        drag(picture(), {60, 40}, {260, 10});
        expect(4, 1.25F, 160.5F, 140.5F, 97.5F, 5);
        QTest::mouseClick(&picture(), Qt::RightButton, {}, {30, 80});
        QTest::mouseClick(&part("lblColor", 16), Qt::LeftButton);
        QTest::mouseClick(&picture(), Qt::RightButton, {}, {160, 140});
        expected_.FillColor = 0x0000FFFF;
        FloodFill(expected_, 30, 80, black);
        expected_.FillColor = 0x000000FF;
        FloodFill(expected_, 160, 140, black);
        comparePictures(image("Picture1"), expected_.Image());
        design_->setTekenModus(3);
        press("ExportKnop");
        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        QCOMPARE(design_->TekenModus, 3);
        comparePictures(design_->ClipPic.Image(), expected_.Image().copy(60, 40, 201, 201));
    }

    void AClickMakesATinyPolygonUnderTheMouseAndResetTakesAllAway() {
        QTest::mouseClick(&picture(), Qt::LeftButton, {}, {300, 50});
        QCOMPARE(part("SelectShape").geometry(), QRect(300, 50, 1, 1));
        expect(2, 0, 300.5F, 50.5F, -2.5F, 6);
        comparePictures(image("Picture1"), expected_.Image());
        press("ResetKnop");
        comparePictures(image("Picture1"), plain(450, 400, white));
        Answer answer;
        press("ExportKnop");
        QCOMPARE(answer.seen(),
                 QStringList("Polygon Maker|Selecteer met ingedrukte linkermuisknop een rechthoek\n"
                             "ter grootte van het object, of klik op Annuleren."));
        QVERIFY(form_->isVisible() && !design_->ClipPic.Visible);
    }
};

KAART_TEST(PolyGonFormTest)
#include "PolyGonFormTest.moc"
