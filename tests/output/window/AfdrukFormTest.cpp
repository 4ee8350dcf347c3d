#include "output/window/AfdrukForm.h"
#include "tests/support/FormTest.h"
#include "tests/support/PdfFile.h"

using namespace kaart;

class AfdrukFormTest : public FormTest<AfdrukForm> {
    Q_OBJECT

    QComboBox& combo(const char* name) const { return part<QComboBox>(name); }
    void type(const char* name, const QString& text) {
        combo(name).lineEdit()->selectAll();
        QTest::keyClicks(combo(name).lineEdit(), text);
    }
    void pick(int option) {
        auto& button = part<QRadioButton>("Option1", option);
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(10, button.height() / 2));
        QVERIFY(button.isChecked());
    }
    void reopen() {
        open();
        combo("Combo2").setCurrentIndex(combo("Combo2").count() - 1);
    }

private slots:
    void init() {
        begin();
        design_->MargeLinks = -3;
        design_->MargeBoven = 2.5;
        design_->MargeOnder = 7;
        reopen();
    }

    void PdfPrinterIsAlwaysThere() {
        QVERIFY(combo("Combo2").currentText().contains("PDF"));
        QCOMPARE(form_->windowTitle(), "Afdrukken (" + combo("Combo2").currentText() + ')');
    }

    void StoredMarginsAndTheYearAreShown() {
        const auto shown = [this](const char* name) {
            const QComboBox& box = combo(name);
            return box.currentText() + " of " + box.itemText(0) + " to " +
                   box.itemText(box.count() - 1);
        };
        QCOMPARE(shown("LMcombo"), "-3 of -99 to 99");
        QCOMPARE(shown("TMcombo"), "2.5 of -99 to 99");
        QCOMPARE(shown("RMcombo"), "0 of 0 to 99");
        QCOMPARE(shown("BMcombo"), "7 of 0 to 99");
        QCOMPARE(shown("Combo1"), "1 of 1 to 20");
        const QString thisYear = QString::number(QDate::currentDate().year());
        QCOMPARE(shown("Combo3"), thisYear + " of 2015 to 2020");
    }

    void OptionsEnableWhatBelongsToThem_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<QSize>("upright");
        QTest::newRow("A4") << 0 << QSize(110, 160);
        QTest::newRow("card") << 1 << QSize(160, 110);
        QTest::newRow("postcards") << 2 << QSize(110, 160);
        QTest::newRow("calendar") << 3 << QSize(160, 110);
    }
    void OptionsEnableWhatBelongsToThem() {
        QFETCH(int, option);
        QFETCH(QSize, upright);
        pick((option + 1) % 4);
        pick(option);
        for (const char* name : {"LMcombo", "TMcombo", "RMcombo", "BMcombo", "Label9", "Check1"}) {
            QCOMPARE(part(name).isEnabled(), option == 0);
        }
        QVERIFY(part("Combo1").isEnabled() && part("Label5").isEnabled());
        QCOMPARE(part("Combo3").isVisible(), option == 3);
        QVERIFY(part("PrintKnop").isEnabled());
        QCOMPARE(part("Picture1").size(), upright);
        QVERIFY(part("Label2").geometry().contains(part("Picture1").geometry()));
        design_->ZetRichting(2);
        reopen();
        pick((option + 1) % 4);
        pick(option);
        QCOMPARE(part("Picture1").size(), upright.transposed());
    }

    void LeftMarginIsStoredAtOnceTheOthersWhenPrinting() {
        type("LMcombo", "-12");
        QCOMPARE(design_->MargeLinks, -12.0);
        type("LMcombo", "12abc");
        QCOMPARE(design_->MargeLinks, 0.0);
        type("TMcombo", "4,5");
        type("RMcombo", "x");
        type("BMcombo", "2.5");
        QCOMPARE(design_->MargeBoven, 2.5);
        QCOMPARE(design_->MargeOnder, 7);
        type("Combo1", "0");
        Answer answer;
        press("PrintKnop");
        QCOMPARE(answer.seen(), QStringList()); // nothing to print, no file to ask for
        QVERIFY(!form_->isVisible());
        QCOMPARE(design_->MargeBoven, 4.5);
        QCOMPARE(design_->MargeRechts, 0.0);
        QCOMPARE(design_->MargeOnder, 2);
    }

    void PrintGoesToTheChosenFile_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("smooth");
        QTest::addColumn<QString>("copies");
        QTest::addColumn<QString>("picture"); // of each page
        QTest::addColumn<int>("pictures");
        const char* const own = " 440x640 ";
        QTest::newRow("A4") << 0 << false << "1" << own << 1;
        QTest::newRow("A4 smoothed") << 0 << true << "1"
                                     << " 880x1280 " << 1;
        QTest::newRow("two cards, not smoothed") << 1 << true << "2" << own << 2;
        QTest::newRow("postcards") << 2 << false << "1" << own << 4;
        QTest::newRow("two calendars") << 3 << false << "2" << own << 2;
    }
    void PrintGoesToTheChosenFile() {
        QFETCH(int, option);
        QFETCH(bool, smooth);
        QFETCH(QString, copies);
        QFETCH(QString, picture);
        QFETCH(int, pictures);
        part<QCheckBox>("Check1").setChecked(smooth);
        type("Combo1", copies);
        pick(option);
        if (option == 3) {
            type("Combo3", " 2019,2");
        }
        Answer answer;
        answer.choose(path("kaart"));
        QTest::keyClick(form_.get(), Qt::Key_Return);
        QCOMPARE(answer.seen(), QStringList("Afdrukken naar PDF"));
        QVERIFY(!form_->isVisible());
        if (!PdfFile::canBeRead()) {
            QSKIP("poppler-utils is missing: the PDF file was not looked at");
        }
        const PdfFile pdf(path("kaart.pdf"));
        QCOMPARE(pdf.pictures().filter(picture).size(), pictures);
        QCOMPARE(pdf.pictures().size(), pictures);
        QCOMPARE(pdf.words(1).value(0).text, option == 3 ? "2019" : "");
    }

    void CancelledFileDialogPrintsNothing() {
        Answer answer;
        answer.cancel();
        press("PrintKnop");
        QCOMPARE(answer.seen().size(), 1);
        QVERIFY(form_->isVisible() && part("PrintKnop").isEnabled());
    }

    void UnwritablePdfIsReported() {
        Answer answer;
        answer.choose(path("nergens/kaart.pdf"));
        press("PrintKnop");
        QCOMPARE(answer.seen().value(1), "Afdrukken|Het PDF-bestand kon niet worden geschreven.");
        QVERIFY(!form_->isVisible());
    }

    void ClosingWhileThePictureIsSmoothedPrintsNothing_data() {
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("closed") << false;
        QTest::newRow("destroyed") << true;
    }
    void ClosingWhileThePictureIsSmoothedPrintsNothing() {
        QFETCH(bool, destroyed);
        part<QCheckBox>("Check1").setChecked(true);
        Answer answer;
        answer.choose(path("kaart.pdf"));
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (form_ && !part("PrintKnop").isEnabled()) {
                destroyed ? form_.reset() : static_cast<void>(form_->close());
            }
        });
        watch.start(0);
        part<QAbstractButton>("PrintKnop").click();
        QVERIFY(!form_ || !form_->isVisible());
        QVERIFY(!QFile::exists(path("kaart.pdf")));
    }
};

KAART_TEST(AfdrukFormTest)
#include "AfdrukFormTest.moc"
