#include "libraries/window/ClipartForm.h"
#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "filters/ColourFilters.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QInputDialog>
#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace kaart;

class ClipartFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<ClipartForm> form_;
    QImage sheet_;

    QImage image(const char* name) const { return control<SurfaceView>(*form_, name).Image(); }
    QImage sticker(int cell) const { return sheet_.copy(cell * 330, 0, 330, 360); }
    void press(const char* button) const {
        QTest::mouseClick(&control<VistaButton>(*form_, button), Qt::LeftButton);
    }
    QScrollBar& size() const { return control<QScrollBar>(*form_, "VScroll2"); }
    void pickThirdLarge() const {
        QTest::mousePress(&control<QWidget>(*form_, "Pic"), Qt::RightButton, {}, QPoint(226, 6));
        size().setValue(330);
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(root_->path()).mkdir("Stickers"));
        std::mt19937 random(7);
        sheet_ = randomPicture(1650, 360, random);
        QVERIFY(sheet_.save(root_->filePath("Stickers/b.ART"), "PNG"));
        QVERIFY(sheet_.copy(0, 0, 1650, 359).save(root_->filePath("Stickers/c.art"), "PNG"));
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
        form_ = std::make_unique<ClipartForm>(*design_);
        form_->show();
    }
    void cleanup() { form_.reset(); }

    void TheMirroredStickerFloatsAboveTheCanvas() {
        QCOMPARE(control<QLabel>(*form_, "Label3").text(), QStringLiteral("Totaal 2 Stickers"));
        pickThirdLarge();
        press("HorKnop");
        size().setValue(215); // the mirror is lost
        QCOMPARE(control<QLabel>(*form_, "Label1").text(),
                 QStringLiteral("Grootte Sticker (215x234)"));
        size().setValue(330);
        comparePictures(image("BigPic"), sticker(2));
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
        QTest::keyClick(form_.get(), Qt::Key_5, Qt::ControlModifier);
        press("HorKnop");
        press("ExportKnop");
        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        comparePictures(design_->ClipPic.Image(), sticker(4).mirrored(true, false));
        QCOMPARE(design_->TekenModus, 50);
    }

    void ColoursGoByTheThresholdGiven_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<double>("threshold");
        QTest::newRow("half") << "127,5" << 127.5;
        for (const char* answer : {"", "veel"}) {
            QTest::newRow(answer) << QString(answer) << -1.0;
        }
    }
    void ColoursGoByTheThresholdGiven() {
        QFETCH(QString, answer);
        QFETCH(double, threshold);
        pickThirdLarge();
        QTimer::singleShot(0, form_.get(), [&] {
            auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            QCOMPARE(box->textValue(), QStringLiteral("40"));
            box->setTextValue(answer);
            box->accept();
        });
        press("BWKnop");
        const QImage before = sticker(2);
        QImage expected = before;
        if (threshold >= 0) {
            FilterZwartWit(spanOf(expected), spanOf(before), threshold);
        }
        comparePictures(image("BigPic"), expected);
    }

    void ARefusedSheetLeavesWhatIsShown() {
        const QImage shown = image("Pic");
        QVERIFY(shown.pixel(0, 0) != 0xFFFFFFFF);
        Answer answer;
        control<QComboBox>(*form_, "Combo1").setCurrentText("c.art");
        QCOMPARE(answer.seen(), QStringList("Error|Geen orginele sticker!"));
        comparePictures(image("Pic"), shown);
    }

    void WithoutSheetsAnEmptyStickerIsHandedOver() {
        QVERIFY(QDir(root_->filePath("Stickers")).removeRecursively());
        form_ = std::make_unique<ClipartForm>(*design_);
        form_->show();
        press("ExportKnop");
        QCOMPARE(design_->ClipPic.Image().size(), QSize(110, 120));
    }
};

KAART_TEST(ClipartFormTest)
#include "ClipartFormTest.moc"
