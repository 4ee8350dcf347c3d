#include "libraries/window/BlackForm.h"
#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace kaart;

class BlackFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<BlackForm> form_;
    QImage large_;

    QWidget& part(const char* name) const { return control<QWidget>(*form_, name); }
    QScrollBar& bar(const char* name) const { return control<QScrollBar>(*form_, name); }
    QImage image(const char* name) const { return control<SurfaceView>(*form_, name).Image(); }
    void click(int row) const {
        auto& list = control<QListWidget>(*form_, "List1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
    }
    void drag(const char* name, QPoint from, const QList<QPoint>& to) const {
        QWidget& view = part(name);
        QTest::mousePress(&view, Qt::LeftButton, {}, from);
        for (const QPoint at : to) {
            QMouseEvent move(QEvent::MouseMove, at, view.mapToGlobal(QPointF(at)), Qt::NoButton,
                             Qt::LeftButton, {});
            QCoreApplication::sendEvent(&view, &move);
        }
        QTest::mouseRelease(&view, Qt::LeftButton, {}, to.value(0, from));
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(root_->path()).mkdir("Vectors"));
        std::mt19937 random(3);
        large_ = randomPicture(500, 300, random, 9);
        QVERIFY(large_.save(root_->filePath("Vectors/groot.vec"), "PNG"));
        QVERIFY(pictureOf({"123", "412"}).save(root_->filePath("Vectors/Klein.VEC"), "BMP"));
        QVERIFY(QFile(root_->filePath("Vectors/kapot.vec")).open(QIODevice::WriteOnly));
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
        form_ = std::make_unique<BlackForm>(*design_);
        form_->show();
    }
    void cleanup() { form_.reset(); }

    void BarsMoveThroughALargeDrawingOnly() {
        QCOMPARE(control<QLabel>(*form_, "Label5").text(), QStringLiteral("3 Afbeeldingen"));
        QVERIFY(bar("HScroll").isEnabled() && bar("VScroll").isEnabled());
        bar("HScroll").setValue(999);
        bar("VScroll").setValue(20);
        comparePictures(image("Pic"), large_.copy(58, 20, 442, 233));
        click(1); // can't be read: the drawing stays
        comparePictures(image("Pic"), large_.copy(0, 0, 442, 233));
        click(2);
        QVERIFY(!bar("HScroll").isEnabled() && !bar("VScroll").isEnabled());
        QCOMPARE(spell(image("Pic").copy(0, 0, 5, 3)), QStringList({"12300", "41200", "00000"}));
    }

    void ACutIsErasedInAndFloatsAboveTheCanvas() {
        bar("VScroll").setValue(10);
        drag("Pic", {100, 50}, {{180, 20}, {139, 79}});
        QVERIFY(part("CopyPic").isVisible() && !part("Pic").isVisible());
        const QImage cut = large_.copy(100, 60, 40, 30);
        comparePictures(image("CopyPic"), cut);
        drag("CopyPic", {25, 22}, {{60, 25}});
        QVERIFY(part("Gum").isHidden());
        QCOMPARE(part("Gum").geometry(), QRect(42, 7, 20, 20));
        const QImage erased = image("CopyPic");
        for (const QPoint hit : {QPoint(15, 12), {15, 4}, {15, 20}, {7, 12}, {23, 12}}) {
            QCOMPARE(erased.pixel(hit), 0xFFFFFFFF);
        }
        comparePictures(erased.copy(0, 21, 40, 9), cut.copy(0, 21, 40, 9));
        comparePictures(erased.copy(24, 0, 16, 30), cut.copy(24, 0, 16, 30));
        QTest::mouseClick(&part("ExportKnop"), Qt::LeftButton);
        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        comparePictures(design_->ClipPic.Image(), erased);
        QCOMPARE(design_->TekenModus, 50);
    }

    void TheRectangleGrowsRightAndDownwardOnly() {
        drag("Pic", {100, 50}, {{20, 59}});
        QCOMPARE(image("CopyPic").size(), QSize(1, 10));
        click(0); // the same line again brings the drawing back
        QVERIFY(part("Pic").isVisible() && !part("CopyPic").isVisible());
        drag("Pic", {437, 230}, {{446, 239}});
        PixelSurface onWhite(10, 10);
        onWhite.PaintPicture(large_.copy(437, 230, 5, 3), 0, 0);
        comparePictures(image("CopyPic"), onWhite.Image());
    }

    void AClickCutsOutNothing() {
        QTest::mouseClick(&part("Pic"), Qt::RightButton, {}, QPoint(7, 8));
        QVERIFY(part("Layer").isHidden() && part("Pic").isVisible());
        QCOMPARE(QPointF(design_->BeginX, design_->BeginY), QPointF(7, 8));
        drag("Pic", {9, 9}, {});
        QVERIFY(!part("Pic").isVisible());
        QTest::mouseClick(&part("ExportKnop"), Qt::LeftButton);
        QVERIFY(!form_->isVisible() && !design_->ClipPic.Visible);
    }

    void AFolderThatIsNotThereIsTold() {
        QVERIFY(QDir(root_->filePath("Vectors")).removeRecursively());
        Answer answer;
        const BlackForm empty(*design_);
        QCOMPARE(answer.seen(), QStringList("|Fout bij het laden van de afbeeldingen!"));
        QVERIFY(!control<QScrollBar>(empty, "HScroll").isEnabled());
    }
};

KAART_TEST(BlackFormTest)
#include "BlackFormTest.moc"
