#include "output/window/SaveForm.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class SaveFormTest : public FormTest<SaveForm> {
    Q_OBJECT

    QStringList hints_;

    QLineEdit& name() const { return part<QLineEdit>("Text1"); }
    void saveAs(const QString& text) {
        name().setText(text);
        press("SaveKnop");
    }
    QString bmp(const QString& text) const { return path("Ontwerpen/" + text + ".bmp"); }
    QImage saved(const QString& text) const { return LoadPicture(bmp(text)).value_or(QImage()); }
    void reopen() {
        open();
        form_->progressPause = 0;
        form_->closingPause = 0;
    }

private slots:
    void init() {
        begin();
        QVERIFY(QDir(root_->path()).mkdir("Pictures"));
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), path("Pictures")});
        design_->change([](PixelSurface& pic) { pic.Line(9, 9, 99, 99, RGB(250, 0, 0)); });
        design_->OntwerpNaam = "Vorige";
        hints_.clear();
        connect(design_.get(), &Design::hintChanged, this,
                [this](const QString& hint, ColorRef colour) {
                    hints_ << hint + QString::number(colour == RGB(0, 90, 0));
                });
        reopen();
    }

    void SaveWritesTheDesignAndCloses() {
        saveAs(" Feest");
        QVERIFY(!form_->isVisible());
        QCOMPARE(form_->result(), int(QDialog::Accepted));
        comparePictures(saved(" Feest"), design_->Pic().Image());
        QCOMPARE(design_->OntwerpPad, path("Pictures/ Feest.jpg"));
        QVERIFY(QFile::exists(design_->OntwerpPad));
        QVERIFY(!design_->Gewijzigd);
        QCOMPARE(design_->OntwerpNaam, "Vorige"); // kept: only opening names it
        QCOMPARE(hints_, QStringList("Informatie...1"));
    }

    void ProgressRunsFromNothingToAll() {
        QStringList told;
        int widest = 0;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (!part("Bar").isVisible()) {
                return;
            }
            QVERIFY(!name().isVisible() && !part("SaveKnop").isEnabled());
            const QImage bar = image("Bar");
            int green = 0;
            while (green < bar.width() && bar.pixel(green, 10) == 0xFF00F000) {
                ++green;
            }
            QVERIFY(green >= widest);
            widest = green;
            told << text("Label1");
        });
        watch.start(0);
        QCOMPARE(text("Label1"), "0%");
        saveAs("Feest");
        QCOMPARE(told.first(), "0%");
        QCOMPARE(told.last(), "100%");
        QVERIFY(told.contains("33%") && told.contains("67%"));
        QCOMPARE(widest, part("Bar").width());
    }

    void BlankNameDoesNothing() {
        saveAs("   ");
        QVERIFY(form_->isVisible());
        QVERIFY(!QFile::exists(path("Ontwerpen")));
    }

    void ExistingNameIsReplacedOnlyAfterYes() {
        saveAs("Feest");
        const QImage before = design_->Pic().Image();
        design_->change([](PixelSurface& pic) { pic.Cls(); });
        reopen();
        Answer answer;
        answer.press(QMessageBox::No).press(QMessageBox::Yes);
        saveAs("Feest");
        QVERIFY(form_->isVisible() && design_->Gewijzigd);
        comparePictures(saved("Feest"), before);
        saveAs("Feest");
        QVERIFY(!form_->isVisible() && !design_->Gewijzigd);
        comparePictures(saved("Feest"), design_->Pic().Image());
        QCOMPARE(answer.seen(), QStringList(2, " Exist|Naam ontwerp bestaat al, overschrijven?"));
    }

    void FailedSaveSaysSoAndKeepsTheDesignChanged() {
        Answer answer;
        QVERIFY(QDir().mkpath(path("mydummy.bmp/vol")));
        saveAs("wel");
        QCOMPARE(answer.seen(), QStringList("|Fout bij opslaan als JPG!"));
        QVERIFY(form_->isVisible() && design_->Gewijzigd);
        QVERIFY(name().isVisible() && part("SaveKnop").isEnabled());
        QVERIFY(QDir(path("mydummy.bmp")).removeRecursively());
        answer.press(QMessageBox::Yes);
        saveAs("wel");
        QVERIFY(!design_->Gewijzigd);
    }

    void ProposedNameGoesAtAClickOrWhenOneIsTyped() {
        QCOMPARE(name().text(), "Vorige");
        QTest::keyClicks(&name(), "Nieuw");
        QTest::keyClick(&name(), Qt::Key_Return);
        QVERIFY(QFile::exists(bmp("Nieuw")));
        reopen();
        QTest::mouseClick(&name(), Qt::LeftButton);
        QCOMPARE(name().text(), "");
    }

    void EscapeLeavesEverythingAsItWas() {
        QTest::keyClick(form_.get(), Qt::Key_Escape);
        QVERIFY(!form_->isVisible() && design_->Gewijzigd);
        QCOMPARE(hints_.size(), 1);
    }

    void WindowMayGoDuringTheProgress_data() {
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("closed") << false;
        QTest::newRow("destroyed") << true;
    }
    void WindowMayGoDuringTheProgress() {
        QFETCH(bool, destroyed);
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (form_ && part("Bar").isVisible()) {
                destroyed ? form_.reset() : static_cast<void>(form_->close());
            }
        });
        watch.start(0);
        name().setText("Feest");
        part<QAbstractButton>("SaveKnop").click();
        QVERIFY(!design_->Gewijzigd);
        QVERIFY(!form_ || !form_->isVisible());
        QVERIFY(QFile::exists(bmp("Feest")));
    }
};

KAART_TEST(SaveFormTest)
#include "SaveFormTest.moc"
