#include "pictures/window/CaptureForm.h"
#include "tests/support/FormTest.h"

using namespace kaart;

namespace {

struct FakeGrab final : ScreenGrab {
    explicit FakeGrab(bool isAlive) : live(isAlive) {}
    bool isLive() const override { return live; }
    void start() override { ++started; }
    void stop() override {}
    QRect desktop() const override { return picture.rect(); }
    QPoint mouse() const override { return {}; }
    QImage grab(const QRect&) const override {
        windowsSeen = windowsSeen || (watched != nullptr && watched->isVisible());
        return picture;
    }

    const bool live;
    int started = 0;
    QImage picture;
    const QWidget* watched = nullptr;
    mutable bool windowsSeen = false;
};

} // namespace

class CaptureFormTest : public FormTest<CaptureForm> {
    Q_OBJECT

    std::unique_ptr<QWidget> owner_;
    FakeGrab* screen_ = nullptr;
    QImage desktop_;

    void menu(const char* name) const { part<QAction>(name).trigger(); }
    void openOn(bool live) {
        auto screen = std::make_unique<FakeGrab>(live);
        screen_ = screen.get();
        screen_->picture = desktop_;
        screen_->watched = owner_.get();
        open(owner_.get(), std::move(screen), 0);
    }

private slots:
    void init() {
        std::mt19937 random(3);
        desktop_ = randomPicture(900, 700, random);
        begin();
        owner_ = std::make_unique<QWidget>();
        owner_->show();
        openOn(true);
    }
    void cleanup() { form_.reset(); } // before its owner goes

    void TheDesktopIsPicturedWithoutTheWindows() {
        QVERIFY(part("Label1").isVisible() && !part("Pic").isVisible());
        menu("Afdruk");
        QVERIFY(!screen_->windowsSeen);
        QVERIFY(form_->isVisible() && owner_->isVisible() && !part("Label1").isVisible());
        comparePictures(image("Pic"), desktop_);
    }

    void TheBandGrowsDownAndRightOnly_data() {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QRect>("cut");
        QTest::newRow("plain") << QPoint(30, 40) << QPoint(49, 44) << QRect(30, 40, 20, 5);
        QTest::newRow("up and left") << QPoint(30, 40) << QPoint(9, 9) << QRect(30, 40, 1, 1);
        QTest::newRow("beyond the edge")
            << QPoint(890, 690) << QPoint(950, 695) << QRect(890, 690, 10, 6);
    }
    void TheBandGrowsDownAndRightOnly() {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QRect, cut);
        menu("Afdruk");
        drag(part("Pic"), from, to);
        QVERIFY(!part("Pic").isVisible() && part("Picture1").isVisible());
        menu("Export");
        QVERIFY(!form_->isVisible() && design_->ClipPic.Visible);
        comparePictures(design_->ClipPic.Image(), desktop_.copy(cut));
        QCOMPARE(design_->TekenModus, 999);
    }

    void NothingIsCutWithoutAnOwnDrag() {
        menu("Export");
        menu("Afdruk");
        QTest::mouseClick(&part("Pic"), Qt::RightButton, {}, {12, 13});
        QCOMPARE(QPointF(design_->BeginX, design_->BeginY), QPointF(12, 13));
        QVERIFY(!part("Layer").isVisible());
        QTest::mouseClick(&part("Pic"), Qt::LeftButton, {}, {20, 20});
        QVERIFY(part("Pic").isVisible());
        menu("Export");
        QVERIFY(form_->isVisible() && !design_->ClipPic.Visible);
        menu("FileExit");
        QVERIFY(!form_->isVisible());
    }

    void WithoutAPictureTheWindowSaysWhatToDo_data() {
        QTest::addColumn<bool>("live");
        QTest::newRow("no screen to look at") << true;
        QTest::newRow("refused, silent or absent") << false;
    }
    void WithoutAPictureTheWindowSaysWhatToDo() {
        QFETCH(bool, live);
        openOn(live);
        screen_->picture = QImage();
        menu("Afdruk");
        if (!live) {
            QVERIFY(!owner_->isVisible());
            emit screen_->refused();
        }
        QVERIFY(owner_->isVisible() && form_->isVisible() && part("Label1").isVisible());
        QVERIFY(text("Label2").contains("klik", Qt::CaseInsensitive));
        screen_->picture = desktop_;
        menu("Afdruk");
        if (!live) {
            emit screen_->frozen();
        }
        QVERIFY(owner_->isVisible() && part("Pic").isVisible());
        QVERIFY(text("Label2").isEmpty());
    }

    void ClosingBringsTheOwnerBack() {
        openOn(false);
        menu("Afdruk");
        form_->reject();
        QVERIFY(owner_->isVisible() && !form_->isVisible());
    }
};

KAART_TEST(CaptureFormTest)
#include "CaptureFormTest.moc"
