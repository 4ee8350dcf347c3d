#include "libraries/window/BlackForm.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class BlackFormTest : public FormTest<BlackForm> {
    Q_OBJECT

    QImage large_;

    QScrollBar& bar(const char* name) const { return part<QScrollBar>(name); }

private slots:
    void init() {
        begin();
        std::mt19937 random(3);
        large_ = randomPicture(500, 300, random, 9);
        write("Vectors/kapot.vec", "");
        QVERIFY(large_.save(path("Vectors/groot.vec"), "PNG"));
        QVERIFY(pictureOf({"123", "412"}).save(path("Vectors/Klein.VEC"), "BMP"));
        open();
    }

    void BarsMoveThroughALargeDrawingOnly() {
        QCOMPARE(text("Label5"), "3 Afbeeldingen");
        QVERIFY(bar("HScroll").isEnabled() && bar("VScroll").isEnabled());
        bar("HScroll").setValue(999);
        bar("VScroll").setValue(20);
        comparePictures(image("Pic"), large_.copy(58, 20, 442, 233));
        clickLine("List1", 1); // can't be read: the drawing stays
        comparePictures(image("Pic"), large_.copy(0, 0, 442, 233));
        clickLine("List1", 2);
        QVERIFY(!bar("HScroll").isEnabled() && !bar("VScroll").isEnabled());
        QCOMPARE(spell(image("Pic").copy(0, 0, 5, 3)), QStringList({"12300", "41200", "00000"}));
    }

    void ACutIsErasedInAndFloatsAboveTheCanvas() {
        bar("VScroll").setValue(10);
        drag(part("Pic"), {100, 50}, {139, 79}, {{180, 20}});
        QVERIFY(part("CopyPic").isVisible() && !part("Pic").isVisible());
        const QImage cut = large_.copy(100, 60, 40, 30);
        comparePictures(image("CopyPic"), cut);
        drag(part("CopyPic"), {25, 22}, {60, 25});
        QVERIFY(part("Gum").isHidden());
        QCOMPARE(part("Gum").geometry(), QRect(42, 7, 20, 20));
        const QImage erased = image("CopyPic");
        for (const QPoint hit : {QPoint(15, 12), {15, 4}, {15, 20}, {7, 12}, {23, 12}}) {
            QCOMPARE(erased.pixel(hit), 0xFFFFFFFF);
        }
        comparePictures(erased.copy(0, 21, 40, 9), cut.copy(0, 21, 40, 9));
        comparePictures(erased.copy(24, 0, 16, 30), cut.copy(24, 0, 16, 30));
        press("ExportKnop");
        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        comparePictures(design_->ClipPic.Image(), erased);
        QCOMPARE(design_->TekenModus, 50);
    }

    void TheRectangleGrowsRightAndDownwardOnly() {
        drag(part("Pic"), {100, 50}, {20, 59});
        QCOMPARE(image("CopyPic").size(), QSize(1, 10));
        clickLine("List1", 0); // the same line again brings the drawing back
        QVERIFY(part("Pic").isVisible() && !part("CopyPic").isVisible());
        drag(part("Pic"), {437, 230}, {446, 239});
        PixelSurface onWhite(10, 10);
        onWhite.PaintPicture(large_.copy(437, 230, 5, 3), 0, 0);
        comparePictures(image("CopyPic"), onWhite.Image());
    }

    void AClickCutsOutNothing() {
        QTest::mouseClick(&part("Pic"), Qt::RightButton, {}, QPoint(7, 8));
        QVERIFY(part("Layer").isHidden() && part("Pic").isVisible());
        QCOMPARE(QPointF(design_->BeginX, design_->BeginY), QPointF(7, 8));
        press("Pic");
        QVERIFY(!part("Pic").isVisible());
        press("ExportKnop");
        QVERIFY(!form_->isVisible() && !design_->ClipPic.Visible);
    }

    void AFolderThatIsNotThereIsTold() {
        QVERIFY(QDir(path("Vectors")).removeRecursively());
        Answer answer;
        open();
        QCOMPARE(answer.seen(), QStringList("|Fout bij het laden van de afbeeldingen!"));
        QVERIFY(!bar("HScroll").isEnabled());
    }
};

KAART_TEST(BlackFormTest)
#include "BlackFormTest.moc"
