#include "output/window/OpenForm.h"
#include "design/session/Design.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QTemporaryDir>

using namespace kaart;

namespace {

const QString noDesign = QStringLiteral("Foute Afbeelding|Dit is géén orgineel ontwerp!");

QImage plain(const QSize& size, QRgb colour) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

} // namespace

class OpenFormTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> root_;
    std::unique_ptr<Design> design_;
    std::unique_ptr<OpenForm> form_;
    int hints_ = 0;

    QListWidget* list() const { return form_->findChild<QListWidget*>("List1"); }
    QWidget* part(const char* part) const {
        return form_->findChild<QWidget*>(QString::fromUtf8(part));
    }
    QString bmp(const QString& name) const {
        return root_->filePath(QStringLiteral("Ontwerpen/%1.bmp").arg(name));
    }
    QImage thumbnail() const { return part("Pic1")->property("Image").value<QImage>(); }

    void click(const QString& name) {
        const auto items = list()->findItems(name, Qt::MatchExactly);
        QCOMPARE(items.size(), 1);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                          list()->visualItemRect(items.first()).center());
    }
    void press(const char* button) { QTest::mouseClick(part(button), Qt::LeftButton); }

private slots:
    void init() {
        root_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(root_->path()).mkdir("Ontwerpen"));
        QVERIFY(SavePicture(plain({440, 640}, 0xFFFF0000), bmp("rood")));
        QVERIFY(SavePicture(plain({640, 440}, 0xFF0000FF), bmp("Blauw")));
        QVERIFY(SavePicture(plain({1000, 80}, 0xFF00FF00), bmp("lint")));
        QVERIFY(SavePicture(plain({540, 540}, 0xFF00FFFF), bmp("vierkant")));
        QVERIFY(SavePicture(plain({640, 441}, 0xFF123456), bmp("bijna")));
        QVERIFY(saveJpeg(plain({440, 640}, 0xFFFFFF00), bmp("foto"), 100));
        QFile half(bmp("half"));
        QVERIFY(QFile::copy(bmp("rood"), half.fileName()));
        QVERIFY(half.resize(5000));
        design_ = std::make_unique<Design>(ProgramFolders{root_->path(), root_->path()});
        design_->change([](PixelSurface& pic) { pic.Line(9, 9, 99, 99, RGB(250, 0, 0)); });
        hints_ = 0;
        connect(design_.get(), &Design::hintChanged, this, [this] { ++hints_; });
        form_ = std::make_unique<OpenForm>(*design_);
        form_->show();
    }
    void cleanup() { form_.reset(); }

    void DesignsAreListedByName() {
        QStringList names;
        for (int row = 0; row < list()->count(); ++row) {
            names << list()->item(row)->text();
        }
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("bijna Blauw foto half lint rood vierkant"));
        QCOMPARE(form_->findChild<QLabel*>("Label2")->text(), QStringLiteral("7 Ontwerpen"));
        QVERIFY(QDir(root_->filePath("Ontwerpen")).removeRecursively());
        const OpenForm empty(*design_);
        QCOMPARE(empty.findChild<QLabel*>("Label2")->text(), QStringLiteral("0 Ontwerpen"));
    }

    void ClickShowsTheDesign_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("orientation");
        QTest::addColumn<QRgb>("colour");
        QTest::newRow("upright") << "rood"
                                 << "Staand" << 0xFFFF0000;
        QTest::newRow("lying") << "Blauw"
                               << "Liggend" << 0xFF0000FF;
        QTest::newRow("strip") << "lint"
                               << "Liggend" << 0xFF00FF00;
        QTest::newRow("square") << "vierkant"
                                << "Staand" << 0xFF00FFFF;
    }
    void ClickShowsTheDesign() {
        QFETCH(QString, name);
        QFETCH(QString, orientation);
        QFETCH(QRgb, colour);
        click(name);
        const QSize size =
            orientation == QStringLiteral("Staand") ? QSize(110, 160) : QSize(160, 110);
        comparePictures(thumbnail(), plain(size, colour));
        QCOMPARE(part("Label1")->size(), size + QSize(5, 5));
        QVERIFY(part("Label1")->geometry().contains(part("Pic1")->geometry()));
        QCOMPARE(design_->OntwerpRichting, orientation);
        QCOMPARE(design_->OntwerpPad, bmp(name));
        QVERIFY(design_->Gewijzigd);
    }

    void WrongSizeGivesAMessageAtEveryClickYetOpens() {
        Answer answer;
        click("Blauw");
        click("bijna");
        click("bijna");
        QCOMPARE(answer.seen(), QStringList({noDesign, noDesign}));
        QCOMPARE(thumbnail().pixel(0, 0), 0xFF0000FF);
        QCOMPARE(design_->OntwerpRichting, QStringLiteral("Liggend"));
        press("OkKnop");
        QCOMPARE(design_->Pic().Image().size(), QSize(640, 440));
        QCOMPARE(design_->Pic().Point(639, 439), RGB(0x12, 0x34, 0x56));
    }

    void OpenedDesignIsUnchangedAndItsOwnUndo() {
        click("Blauw");
        press("OkKnop");
        QVERIFY(!form_->isVisible() && !design_->Gewijzigd);
        comparePictures(design_->Pic().Image(), plain({640, 440}, 0xFF0000FF));
        comparePictures(design_->UndoPic().Image(), plain({640, 440}, 0xFF0000FF));
        QCOMPARE(design_->OntwerpNaam, QStringLiteral("Blauw"));
        QCOMPARE(hints_, 1);
    }

    void JpegByTheNameOfABmpOpens() {
        click("foto");
        press("OkKnop");
        QVERIFY(redOf(design_->Pic().Point(5, 5)) > 250);
        QCOMPARE(design_->OntwerpNaam, QStringLiteral("foto"));
    }

    void DamagedFileCostsNothing() {
        const QImage before = design_->Pic().Image();
        Answer answer;
        click("half"); // kept: the test is made on what was there before
        QCOMPARE(answer.seen(), QStringList(noDesign));
        click("rood");
        click("half");
        QCOMPARE(answer.seen().size(), 1);
        QCOMPARE(thumbnail().pixel(0, 0), 0xFFFF0000);
        press("OkKnop");
        QVERIFY(!form_->isVisible() && design_->Gewijzigd);
        comparePictures(design_->Pic().Image(), before);
    }

    void NothingSelectedOpensNothing() {
        const QImage before = design_->Pic().Image();
        press("OkKnop");
        QVERIFY(!form_->isVisible());
        comparePictures(design_->Pic().Image(), before);
        QCOMPARE(hints_, 0);
    }

    void KeysPickAndOpen() {
        QTest::keyClick(list(), Qt::Key_End);
        QCOMPARE(thumbnail().pixel(0, 0), 0xFF00FFFF);
        QTest::keyClick(list(), Qt::Key_Return);
        QCOMPARE(design_->OntwerpNaam, QStringLiteral("vierkant"));
    }

    void CancelOnlyResetsTheHint() {
        const QString richting = design_->OntwerpRichting;
        click("Blauw");
        QVERIFY(design_->OntwerpRichting != richting);
        press("CancelKnop");
        QCOMPARE(design_->OntwerpRichting, richting);
        QVERIFY(!form_->isVisible() && design_->Gewijzigd);
        QCOMPARE(hints_, 1);
        QCOMPARE(design_->OntwerpNaam, QString());
    }
};

KAART_TEST(OpenFormTest)
#include "OpenFormTest.moc"
