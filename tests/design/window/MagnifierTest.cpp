#include "design/window/Magnifier.h"

#include "controls/ControlTable.h"
#include "design/window/PanelTable.h"
#include "design/window/StartValues.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

namespace {

/// A screen on which every pixel has a colour of its own place.
struct FakeGrab final : ScreenGrab {
    bool isLive() const override { return true; }
    void start() override { ++started; }
    void stop() override { ++stopped; }
    QRect desktop() const override { return {0, 0, 800, 600}; }
    QPoint mouse() const override { return at; }
    QImage grab(const QRect& pixels) const override {
        asked = pixels;
        if (blind) {
            return {};
        }
        QImage part(pixels.size(), QImage::Format_RGB32);
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                part.setPixel(x, y, colourAt(pixels.x() + x, pixels.y() + y));
            }
        }
        return part;
    }
    static QRgb colourAt(int x, int y) { return qRgb(x & 255, y & 255, 9); }

    QPoint at{400, 300};
    bool blind = false;
    int started = 0;
    int stopped = 0;
    mutable QRect asked;
};

/// The window's controls with a magnifier that looks at the fake screen.
struct Desk {
    Desk() {
        buildControls(window, panelTable());
        auto made = std::make_unique<FakeGrab>();
        screen = made.get();
        magnifier = new Magnifier(window, design, std::move(made));
        QObject::connect(&design, &Design::hintChanged, &window,
                         [this](const QString& text) { hint = text; });
        window.show();
    }
    Fader& slider() { return control<Fader>(window, "LoepScroll"); }
    QString label() const { return control<QLabel>(window, "Label25").text(); }
    QImage picture() const { return control<SurfaceView>(window, "LoepPic").Image(); }
    bool running() const { return control<QTimer>(window, "LoepTimer").isActive(); }
    bool crossed() const {
        return control<QWidget>(window, "Line1").isVisible() &&
               control<QWidget>(window, "Line2").isVisible();
    }

    Design design{{}};
    QWidget window;
    FakeGrab* screen = nullptr;
    Magnifier* magnifier = nullptr;
    QString hint;
};

} // namespace

class MagnifierTest : public QObject {
    Q_OBJECT

    // The screen pixel under the middle of the cross comes last.
    using Look = Rows<int, QRect, QPoint>;

private slots:
    void LooksAtTheScreenRoundTheMouse_data() {
        const Look row;
        row("1", 1, {320, 232, 160, 136}, {399, 297});
        row("2", 2, {360, 266, 80, 68}, {399, 298});
        row("3: 53.3 and 45.3", 3, {374, 278, 53, 45}, {400, 299});
        row("7: 22.9 and 19.4", 7, {389, 291, 23, 19}, {400, 300});
        row("10: 16 and 13.6", 10, {392, 293, 16, 14}, {399, 299});
    }
    void LooksAtTheScreenRoundTheMouse() {
        const auto [z, asked, sampled] = Look::now();
        Desk desk;
        desk.slider().setValue(z);
        desk.magnifier->tick();
        QCOMPARE(desk.screen->asked, asked);
        const QRgb last = FakeGrab::colourAt(asked.right(), asked.bottom());
        QCOMPARE(desk.picture().pixel(159, 135), last);
        const QRgb middle = FakeGrab::colourAt(sampled.x(), sampled.y());
        QCOMPARE(desk.picture().pixel(79, 65), middle);
        QCOMPARE(desk.label(), QStringLiteral("RGB : %1, %2, 9 / #%3")
                                   .arg(qRed(middle))
                                   .arg(qGreen(middle))
                                   .arg(QColor(middle).name().mid(1).toUpper()));
    }

    void TheCrossStandsAboveThePictureOnly() {
        Desk desk;
        desk.slider().setValue(1);
        QVERIFY(desk.crossed());
        desk.magnifier->tick();
        comparePictures(desk.picture(), desk.screen->grab(QRect(320, 232, 160, 136)));
        QCOMPARE(control<QWidget>(desk.window, "Line1").geometry(), QRect(79, 49, 1, 33));
        QCOMPARE(control<QWidget>(desk.window, "Line2").geometry(), QRect(60, 65, 39, 1));
    }

    void EveryWayToTurnItOffStopsAll() {
        using TurnOff = std::function<void(Desk&)>;
        for (const TurnOff& turnOff : {TurnOff([](Desk& desk) { desk.slider().setValue(0); }),
                                       TurnOff([](Desk& desk) { resetControls(desk.window); }),
                                       TurnOff([](Desk& desk) { desk.window.close(); })}) {
            Desk desk;
            QVERIFY(!desk.running() && !desk.crossed());
            desk.slider().setValue(4);
            desk.slider().setValue(5);
            QCOMPARE(desk.screen->started, 1); // once per turning on
            QVERIFY(desk.running());
            desk.magnifier->tick();
            turnOff(desk);
            QVERIFY(!desk.running() && !desk.crossed());
            QCOMPARE(desk.screen->stopped, 1);
            QCOMPARE(desk.label(), "RGB :");
            desk.magnifier->tick();
            comparePictures(desk.picture(), PixelSurface(160, 136).Image());
        }
    }

    void AFrozenPictureIsAnnouncedAndARefusalTurnsItOff() {
        Desk desk;
        desk.slider().setValue(3);
        desk.screen->blind = true;
        desk.magnifier->tick();
        QCOMPARE(desk.label(), "RGB :");
        emit desk.screen->frozen();
        QVERIFY(desk.hint.contains("stilstaand beeld") && desk.running());
        emit desk.screen->refused();
        QVERIFY(desk.hint.contains("niet zien") && !desk.running());
        QCOMPARE(desk.slider().value(), 0);
    }
};

KAART_TEST(MagnifierTest)
#include "MagnifierTest.moc"
