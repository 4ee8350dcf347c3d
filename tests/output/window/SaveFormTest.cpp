#include "output/window/SaveForm.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

using namespace kaart;

class SaveFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<SaveForm> form_;
    QStringList hints_;

    QLineEdit* name() const { return form_->findChild<QLineEdit*>("Text1"); }
    QWidget* part(const char* part) const {
        return form_->findChild<QWidget*>(QString::fromUtf8(part));
    }
    void saveAs(const QString& text) {
        name()->setText(text);
        QTest::mouseClick(part("SaveKnop"), Qt::LeftButton);
    }
    QString bmp(const QString& text) const {
        return root_->filePath(QStringLiteral("Ontwerpen/%1.bmp").arg(text));
    }
    void reopen() {
        form_ = std::make_unique<SaveForm>(*design_);
        form_->progressPause = 0;
        form_->closingPause = 0;
        form_->show();
    }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(root_->path()).mkdir("Pictures"));
        design_ =
            std::make_unique<Design>(ProgramFolders{root_->path(), root_->filePath("Pictures")});
        design_->change([](PixelSurface& pic) { pic.Line(9, 9, 99, 99, RGB(250, 0, 0)); });
        design_->OntwerpNaam = QStringLiteral("Vorige");
        hints_.clear();
        connect(design_.get(), &Design::hintChanged, this,
                [this](const QString& hint, ColorRef colour) {
                    hints_ << hint + QString::number(colour == RGB(0, 90, 0));
                });
        reopen();
    }
    void cleanup() { form_.reset(); }

    void SaveWritesTheDesignAndCloses() {
        saveAs(" Feest");
        QVERIFY(!form_->isVisible());
        QCOMPARE(form_->result(), int(QDialog::Accepted));
        comparePictures(LoadPicture(bmp(" Feest")).value_or(QImage()), design_->Pic().Image());
        QCOMPARE(design_->OntwerpPad, root_->filePath("Pictures/ Feest.jpg"));
        QVERIFY(QFile::exists(design_->OntwerpPad));
        QVERIFY(!design_->Gewijzigd);
        QCOMPARE(design_->OntwerpNaam, QStringLiteral("Vorige")); // kept: only opening names it
        QCOMPARE(hints_, QStringList(QStringLiteral("Informatie...1")));
    }

    void ProgressRunsFromNothingToAll() {
        QStringList told;
        int widest = 0;
        auto* label = form_->findChild<QLabel*>("Label1");
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (!part("Bar")->isVisible()) {
                return;
            }
            QVERIFY(!name()->isVisible() && !part("SaveKnop")->isEnabled());
            const QImage bar = part("Bar")->property("Image").value<QImage>();
            int green = 0;
            while (green < bar.width() && bar.pixel(green, 10) == 0xFF00F000) {
                ++green;
            }
            QVERIFY(green >= widest);
            widest = green;
            if (told.isEmpty() || told.last() != label->text()) {
                told << label->text();
            }
        });
        watch.start(0);
        QCOMPARE(label->text(), QStringLiteral("0%"));
        saveAs("Feest");
        QCOMPARE(told.first(), QStringLiteral("0%"));
        QCOMPARE(told.last(), QStringLiteral("100%"));
        QVERIFY(told.contains("33%") && told.contains("67%"));
        QCOMPARE(widest, part("Bar")->width());
    }

    void BlankNameDoesNothing() {
        saveAs("   ");
        QVERIFY(form_->isVisible());
        QVERIFY(!QDir(root_->path()).exists("Ontwerpen"));
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
        comparePictures(LoadPicture(bmp("Feest")).value_or(QImage()), before);
        saveAs("Feest");
        QVERIFY(!form_->isVisible() && !design_->Gewijzigd);
        comparePictures(LoadPicture(bmp("Feest")).value_or(QImage()), design_->Pic().Image());
        const QString question = QStringLiteral(" Exist|Naam ontwerp bestaat al, overschrijven?");
        QCOMPARE(answer.seen(), QStringList({question, question}));
    }

    void FailedSaveSaysSoAndKeepsTheDesignChanged() {
        Answer answer;
        QDir program(root_->path());
        QVERIFY(program.mkpath(QStringLiteral("mydummy.bmp/vol")));
        saveAs("wel");
        QCOMPARE(answer.seen(), QStringList(QStringLiteral("|Fout bij opslaan als JPG!")));
        QVERIFY(form_->isVisible() && design_->Gewijzigd);
        QVERIFY(name()->isVisible() && part("SaveKnop")->isEnabled());
        QVERIFY(QDir(program.filePath(QStringLiteral("mydummy.bmp"))).removeRecursively());
        answer.press(QMessageBox::Yes);
        saveAs("wel");
        QVERIFY(!design_->Gewijzigd);
    }

    void ProposedNameGoesAtAClick() {
        QCOMPARE(name()->text(), QStringLiteral("Vorige"));
        QTest::mouseClick(name(), Qt::LeftButton);
        QCOMPARE(name()->text(), QString());
    }

    void TypingAndEnterReplaceTheProposedName() {
        QTest::keyClicks(name(), "Nieuw");
        QTest::keyClick(name(), Qt::Key_Return);
        QVERIFY(QFile::exists(bmp("Nieuw")));
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
            if (form_ && part("Bar")->isVisible()) {
                destroyed ? form_.reset() : static_cast<void>(form_->close());
            }
        });
        watch.start(0);
        name()->setText("Feest");
        form_->findChild<QAbstractButton*>("SaveKnop")->click();
        QVERIFY(!design_->Gewijzigd);
        QVERIFY(!form_ || !form_->isVisible());
        QVERIFY(QFile::exists(bmp("Feest")));
    }
};

KAART_TEST(SaveFormTest)
#include "SaveFormTest.moc"
