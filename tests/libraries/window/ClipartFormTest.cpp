#include "libraries/window/ClipartForm.h"
#include "filters/ColourFilters.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class ClipartFormTest : public FormTest<ClipartForm> {
    Q_OBJECT

    QImage sheet_;

    QImage sticker(int cell) const { return sheet_.copy(cell * 330, 0, 330, 360); }
    QScrollBar& size() const { return part<QScrollBar>("VScroll2"); }
    void pickThirdLarge() const {
        QTest::mousePress(&part("Pic"), Qt::RightButton, {}, QPoint(226, 6));
        size().setValue(330);
    }

private slots:
    void init() {
        begin();
        QVERIFY(QDir(root_->path()).mkdir("Stickers"));
        std::mt19937 random(7);
        sheet_ = randomPicture(1650, 360, random);
        QVERIFY(sheet_.save(path("Stickers/b.ART"), "PNG"));
        QVERIFY(sheet_.copy(0, 0, 1650, 359).save(path("Stickers/c.art"), "PNG"));
        open();
    }

    void TheMirroredStickerFloatsAboveTheCanvas() {
        QCOMPARE(text("Label3"), "Totaal 2 Stickers");
        pickThirdLarge();
        press("HorKnop");
        size().setValue(215); // the mirror is lost
        QCOMPARE(text("Label1"), "Grootte Sticker (215x234)");
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
            QCOMPARE(box->textValue(), "40");
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
        part<QComboBox>("Combo1").setCurrentText("c.art");
        QCOMPARE(answer.seen(), QStringList("Error|Geen orginele sticker!"));
        comparePictures(image("Pic"), shown);
    }

    void WithoutSheetsAnEmptyStickerIsHandedOver() {
        QVERIFY(QDir(path("Stickers")).removeRecursively());
        open();
        press("ExportKnop");
        QCOMPARE(design_->ClipPic.Image().size(), QSize(110, 120));
    }
};

KAART_TEST(ClipartFormTest)
#include "ClipartFormTest.moc"
