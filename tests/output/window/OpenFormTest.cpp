#include "output/window/OpenForm.h"
#include "tests/support/FormTest.h"

using namespace kaart;

namespace {

const QString noDesign = QStringLiteral("Foute Afbeelding|Dit is géén orgineel ontwerp!");

} // namespace

class OpenFormTest : public FormTest<OpenForm> {
    Q_OBJECT

    int hints_ = 0;

    QString bmp(const QString& name) const { return path("Ontwerpen/" + name + ".bmp"); }
    void click(const char* name) const { clickLine("List1", name); }

private slots:
    void init() {
        begin();
        write("Ontwerpen/rood.bmp", plain(440, 640, RGB(255, 0, 0)));
        write("Ontwerpen/Blauw.bmp", plain(640, 440, RGB(0, 0, 255)));
        write("Ontwerpen/lint.bmp", plain(1000, 80, RGB(0, 255, 0)));
        write("Ontwerpen/vierkant.bmp", plain(540, 540, RGB(0, 255, 255)));
        write("Ontwerpen/bijna.bmp", plain(640, 441, RGB(18, 52, 86)));
        QVERIFY(saveJpeg(plain(440, 640, RGB(255, 255, 0)), bmp("foto"), 100));
        QVERIFY(QFile::copy(bmp("rood"), bmp("half")) && QFile::resize(bmp("half"), 5000));
        design_->change([](PixelSurface& pic) { pic.Line(9, 9, 99, 99, RGB(250, 0, 0)); });
        hints_ = 0;
        connect(design_.get(), &Design::hintChanged, this, [this] { ++hints_; });
        open();
    }

    void DesignsAreListedByName() {
        QCOMPARE(lines("List1").join(' '), "bijna Blauw foto half lint rood vierkant");
        QCOMPARE(text("Label2"), "7 Ontwerpen");
        QVERIFY(QDir(path("Ontwerpen")).removeRecursively());
        open();
        QCOMPARE(text("Label2"), "0 Ontwerpen");
    }

    void ClickShowsTheDesign_data() {
        QTest::addColumn<QString>("orientation");
        QTest::addColumn<ColorRef>("colour");
        QTest::newRow("rood") << "Staand" << RGB(255, 0, 0);
        QTest::newRow("Blauw") << "Liggend" << RGB(0, 0, 255);
        QTest::newRow("lint") << "Liggend" << RGB(0, 255, 0);
        QTest::newRow("vierkant") << "Staand" << RGB(0, 255, 255);
    }
    void ClickShowsTheDesign() {
        QFETCH(QString, orientation);
        QFETCH(ColorRef, colour);
        click(QTest::currentDataTag());
        const QSize size = orientation == "Staand" ? QSize(110, 160) : QSize(160, 110);
        comparePictures(image("Pic1"), plain(size.width(), size.height(), colour));
        QCOMPARE(part("Label1").size(), size + QSize(5, 5));
        QVERIFY(part("Label1").geometry().contains(part("Pic1").geometry()));
        QCOMPARE(design_->OntwerpRichting, orientation);
        QCOMPARE(design_->OntwerpPad, bmp(QTest::currentDataTag()));
        QVERIFY(design_->Gewijzigd);
    }

    void WrongSizeGivesAMessageAtEveryClickYetOpens() {
        Answer answer;
        click("Blauw");
        click("bijna");
        click("bijna");
        QCOMPARE(answer.seen(), QStringList({noDesign, noDesign}));
        QCOMPARE(image("Pic1").pixel(0, 0), 0xFF0000FF);
        QCOMPARE(design_->OntwerpRichting, "Liggend");
        press("OkKnop");
        comparePictures(design_->Pic().Image(), plain(640, 440, RGB(18, 52, 86)));
    }

    void OpenedDesignIsUnchangedAndItsOwnUndo() {
        click("Blauw");
        press("OkKnop");
        QVERIFY(!form_->isVisible() && !design_->Gewijzigd);
        comparePictures(design_->Pic().Image(), plain(640, 440, RGB(0, 0, 255)));
        comparePictures(design_->UndoPic().Image(), plain(640, 440, RGB(0, 0, 255)));
        QCOMPARE(design_->OntwerpNaam, "Blauw");
        QCOMPARE(hints_, 1);
    }

    void JpegByTheNameOfABmpOpens() {
        click("foto");
        press("OkKnop");
        QVERIFY(redOf(design_->Pic().Point(5, 5)) > 250);
    }

    void DamagedFileCostsNothing() {
        const QImage before = design_->Pic().Image();
        Answer answer;
        click("half"); // kept: the test is made on what was there before
        QCOMPARE(answer.seen(), QStringList(noDesign));
        click("Blauw");
        click("half");
        QCOMPARE(answer.seen().size(), 1);
        QCOMPARE(image("Pic1").pixel(0, 0), 0xFF0000FF);
        press("OkKnop");
        QVERIFY(!form_->isVisible() && design_->Gewijzigd && !design_->isLandscape());
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
        QTest::keyClick(&part("List1"), Qt::Key_End);
        QCOMPARE(image("Pic1").pixel(0, 0), 0xFF00FFFF);
        QTest::keyClick(&part("List1"), Qt::Key_Return);
        QCOMPARE(design_->OntwerpNaam, "vierkant");
    }

    void CancelOnlyResetsTheHint() {
        const QString richting = design_->OntwerpRichting;
        click("Blauw");
        QVERIFY(design_->OntwerpRichting != richting);
        press("CancelKnop");
        QCOMPARE(design_->OntwerpRichting, richting);
        QVERIFY(!form_->isVisible() && design_->Gewijzigd);
        QCOMPARE(hints_, 1);
        QCOMPARE(design_->OntwerpNaam, "");
    }
};

KAART_TEST(OpenFormTest)
#include "OpenFormTest.moc"
