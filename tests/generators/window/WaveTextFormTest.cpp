#include "generators/window/WaveTextForm.h"
#include "controls/Fader.h"
#include "generators/CurvedText.h"
#include "generators/TextColours.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class WaveTextFormTest : public FormTest<WaveTextForm> {
    Q_OBJECT

    void slide(std::initializer_list<std::pair<const char*, int>> sliders) {
        for (const auto& [name, value] : sliders) {
            part<Fader>(name).setValue(value);
        }
    }
    QImage shown() const { return image("Pic"); }
    /// Picks an entry of KleurenPalet as a user does.
    void pickColour(int index) {
        press("KleurKnop");
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        menu->setActiveAction(&part<QAction>("Kleurtje", index));
        QTest::keyClick(menu, Qt::Key_Return);
    }

private slots:
    void init() {
        begin();
        open();
    }

    void TheSliderMovedLastChoosesTheCurve() {
        PixelSurface expected(685, 340);
        expected.FontSize = 40;
        expected.FontBold = true;
        part<QComboBox>("Combo2").setCurrentText("40");
        part<QCheckBox>("BoldCheck").click();
        const QString text = "Hoera voor Jo";
        part<QLineEdit>("Text1").setText(text);
        comparePictures(shown(), plain(685, 340, white));
        slide({{"HScroll3", 180}, {"HScroll7", 90}, {"HScroll2", 120}});
        CircleText(expected, 342, 150, 120, 90, 180, text);
        comparePictures(shown(), expected.Image());
        slide({{"HScroll4", 45}, {"HScroll5", 12}});
        RotateText(expected, 342, 150, 45, 12, text);
        comparePictures(shown(), expected.Image());
        slide({{"HScroll13", 60}, {"HScroll6", 700}, {"HScroll1", 31}}); // 342.5 - 6.5 * 31 = 141
        WaveText(expected, 141, 150, 31, 700, 60, text);
        comparePictures(shown(), expected.Image());
        slide({{"HScroll10", 300}, {"HScroll8", 20}, {"HScroll11", 9}, {"HScroll12", 4}});
        slide({{"HScroll9", 200}});
        ElipticText(expected, 342, 150, 200, 20, 9, 4, 300, text);
        comparePictures(shown(), expected.Image());
    }

    void ASelectedPieceOfColouredTextIsHandedOver() {
        slide({{"HScroll1", 30}});
        PixelSurface expected(685, 340);
        expected.setPicture(shown());
        PixelSurface pattern(685, 340, black);
        FillPalette(pattern, 3);
        for (int y = 0; y < 340; ++y) {
            ColorTextRow(expected.writePixels(), pattern.pixels(), y);
        }
        pickColour(3);
        comparePictures(shown(), expected.Image());
        auto& pic = part("Pic");
        design_->setTekenModus(7);
        QTest::mouseClick(&pic, Qt::LeftButton);
        Answer answer;
        press("ExportKnop");
        QCOMPARE(answer.seen(),
                 QStringList("Golvend en circel tekst|Selecteer met ingedrukte linkermuisknop een "
                             "rechthoek\nom de tekst dat je wilt copyeren, of klik op Annuleren."));
        drag(pic, {200, 100}, {150, 20}); // upwards: one pixel only
        QCOMPARE(part("SelectShape").geometry(), QRect(200, 100, 1, 1));
        drag(pic, {150, 100}, {699, 299});
        press("ExportKnop");
        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        QCOMPARE(design_->TekenModus, 7);
        QCOMPARE(design_->BeginX, 150.0);
        PixelSurface cut(550, 200); // white beyond the picture
        cut.PaintPicture(expected.Image(), -150, -100);
        comparePictures(design_->ClipPic.Image(), cut.Image());
    }

    void TheWindowMayGoWhileTheTextIsColoured() {
        slide({{"HScroll1", 30}});
        const QImage plain = shown();
        QTimer::singleShot(0, this, [&] { form_->close(); });
        part<QAction>("Kleurtje", 1).trigger();
        comparePictures(shown(), plain); // the first rows hold no text
        form_->show();
        QTimer::singleShot(0, this, [&] { form_.reset(); });
        part<QAction>("Kleurtje", 1).trigger();
        QVERIFY(!form_ && QGuiApplication::overrideCursor() == nullptr);
    }
};

KAART_TEST(WaveTextFormTest)
#include "WaveTextFormTest.moc"
