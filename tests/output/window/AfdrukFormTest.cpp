#include "output/window/AfdrukForm.h"
#include "design/session/Design.h"
#include "tests/support/Answer.h"
#include "tests/support/PdfFile.h"
#include "tests/support/Test.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QFile>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>

using namespace kaart;

class AfdrukFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<AfdrukForm> form_;
    QString pdf_;

    QWidget* part(const char* part) const {
        return form_->findChild<QWidget*>(QString::fromUtf8(part));
    }
    QComboBox* combo(const char* name) const {
        return form_->findChild<QComboBox*>(QString::fromUtf8(name));
    }
    void type(const char* name, const QString& text) {
        combo(name)->lineEdit()->selectAll();
        QTest::keyClicks(combo(name)->lineEdit(), text);
    }
    void pick(int option) {
        auto* button = form_->findChild<QRadioButton*>(QStringLiteral("Option1(%1)").arg(option));
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
        QVERIFY(button->isChecked());
    }
    void press(const char* button) { QTest::mouseClick(part(button), Qt::LeftButton); }
    void reopen() {
        form_ = std::make_unique<AfdrukForm>(*design_);
        form_->show();
        combo("Combo2")->setCurrentIndex(combo("Combo2")->count() - 1);
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        pdf_ = root_->filePath("kaart.pdf");
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
        design_->MargeLinks = -3;
        design_->MargeBoven = 2.5;
        design_->MargeOnder = 7;
        reopen();
    }
    void cleanup() { form_.reset(); }

    void PdfPrinterIsAlwaysThere() {
        QVERIFY(combo("Combo2")->currentText().contains("PDF"));
        QCOMPARE(form_->windowTitle(),
                 QStringLiteral("Afdrukken (%1)").arg(combo("Combo2")->currentText()));
    }

    void StoredMarginsAndTheYearAreShown() {
        QCOMPARE(combo("LMcombo")->currentText(), QStringLiteral("-3"));
        QCOMPARE(combo("TMcombo")->currentText(), QStringLiteral("2.5"));
        QCOMPARE(combo("RMcombo")->currentText(), QStringLiteral("0"));
        QCOMPARE(combo("BMcombo")->currentText(), QStringLiteral("7"));
        QCOMPARE(combo("LMcombo")->itemText(0) + combo("RMcombo")->itemText(0),
                 QStringLiteral("-990"));
        QCOMPARE(combo("BMcombo")->itemText(99), QStringLiteral("99"));
        QCOMPARE(combo("Combo3")->currentText(), QString::number(QDate::currentDate().year()));
        QCOMPARE(combo("Combo3")->count(), 6);
        QCOMPARE(combo("Combo1")->currentText(), QStringLiteral("1"));
        QCOMPARE(combo("Combo1")->count(), 20);
    }

    void OptionsEnableWhatBelongsToThem_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("margins");
        QTest::addColumn<bool>("year");
        QTest::addColumn<QSize>("upright");
        QTest::newRow("A4") << 0 << true << false << QSize(110, 160);
        QTest::newRow("card") << 1 << false << false << QSize(160, 110);
        QTest::newRow("postcards") << 2 << false << false << QSize(110, 160);
        QTest::newRow("calendar") << 3 << false << true << QSize(160, 110);
    }
    void OptionsEnableWhatBelongsToThem() {
        QFETCH(int, option);
        QFETCH(bool, margins);
        QFETCH(bool, year);
        QFETCH(QSize, upright);
        pick((option + 1) % 4);
        pick(option);
        for (const char* name : {"LMcombo", "TMcombo", "RMcombo", "BMcombo", "Label9", "Check1"}) {
            QCOMPARE(part(name)->isEnabled(), margins);
        }
        QVERIFY(part("Combo1")->isEnabled() && part("Label5")->isEnabled());
        QCOMPARE(part("Combo3")->isVisible(), year);
        QVERIFY(part("PrintKnop")->isEnabled());
        QCOMPARE(part("Picture1")->size(), upright);
        QVERIFY(part("Label2")->geometry().contains(part("Picture1")->geometry()));
        design_->ZetRichting(2);
        reopen();
        pick((option + 1) % 4);
        pick(option);
        QCOMPARE(part("Picture1")->size(), upright.transposed());
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
        QTest::newRow("A4") << 0 << false << "1"
                            << "440x640" << 1;
        QTest::newRow("A4 smoothed") << 0 << true << "1"
                                     << "880x1280" << 1;
        QTest::newRow("two cards, not smoothed") << 1 << true << "2"
                                                 << "440x640" << 2;
        QTest::newRow("postcards") << 2 << false << "1"
                                   << "440x640" << 4;
        QTest::newRow("two calendars") << 3 << false << "2"
                                       << "440x640" << 2;
    }
    void PrintGoesToTheChosenFile() {
        QFETCH(int, option);
        QFETCH(bool, smooth);
        QFETCH(QString, copies);
        QFETCH(QString, picture);
        QFETCH(int, pictures);
        form_->findChild<QCheckBox*>("Check1")->setChecked(smooth);
        type("Combo1", copies);
        pick(option);
        if (option == 3) {
            type("Combo3", " 2019,2");
        }
        Answer answer;
        answer.choose(root_->filePath("kaart"));
        QTest::keyClick(form_.get(), Qt::Key_Return);
        QCOMPARE(answer.seen(), QStringList(QStringLiteral("Afdrukken naar PDF")));
        QVERIFY(!form_->isVisible());
        if (!PdfFile::canBeRead()) {
            QSKIP("poppler-utils is missing: the PDF file was not looked at");
        }
        const QStringList printed = PdfFile(pdf_).pictures();
        QCOMPARE(printed.filter(' ' + picture + ' ').size(), pictures);
        QCOMPARE(printed.size(), pictures);
        const auto words = PdfFile(pdf_).words(1);
        QCOMPARE(words.isEmpty() ? QString() : words[0].text, option == 3 ? "2019" : "");
    }

    void CancelledFileDialogPrintsNothing() {
        Answer answer;
        answer.cancel();
        press("PrintKnop");
        QCOMPARE(answer.seen().size(), 1);
        QVERIFY(form_->isVisible() && part("PrintKnop")->isEnabled());
    }

    void UnwritablePdfIsReported() {
        Answer answer;
        answer.choose(root_->filePath("nergens/kaart.pdf"));
        press("PrintKnop");
        QCOMPARE(answer.seen().value(1),
                 QStringLiteral("Afdrukken|Het PDF-bestand kon niet worden geschreven."));
        QVERIFY(!form_->isVisible());
    }

    void ClosingWhileThePictureIsSmoothedPrintsNothing_data() {
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("closed") << false;
        QTest::newRow("destroyed") << true;
    }
    void ClosingWhileThePictureIsSmoothedPrintsNothing() {
        QFETCH(bool, destroyed);
        form_->findChild<QCheckBox*>("Check1")->setChecked(true);
        Answer answer;
        answer.choose(pdf_);
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (form_ && !part("PrintKnop")->isEnabled()) {
                destroyed ? form_.reset() : static_cast<void>(form_->close());
            }
        });
        watch.start(0);
        form_->findChild<QAbstractButton*>("PrintKnop")->click();
        QVERIFY(!form_ || !form_->isVisible());
        QVERIFY(!QFile::exists(pdf_));
    }
};

KAART_TEST(AfdrukFormTest)
#include "AfdrukFormTest.moc"
