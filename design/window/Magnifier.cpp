#include "design/window/Magnifier.h"

#include "controls/ControlTable.h"
#include "controls/OverlayShape.h"
#include "design/session/Algemeen.h"
#include "design/surface/GraphicsCalls.h"
#include "design/surface/Numbers.h"

#include <QEvent>

namespace kaart {

namespace {

constexpr int interval = 25; // ms
constexpr int largest = 10;
constexpr int labelHeight = 11; // pixels; the longest colour just fits
constexpr int sampledX = 79;
constexpr int sampledY = 65;
constexpr QRect upright(sampledX, 49, 1, 33);
constexpr QRect level(60, sampledY, 39, 1);

} // namespace

Magnifier::Magnifier(QWidget& window, Design& design, std::unique_ptr<ScreenGrab> screen)
    : QObject(&window),
      design_(design),
      slider_(control<Fader>(window, "LoepScroll")),
      pic_(control<SurfaceView>(window, "LoepPic")),
      label_(control<QLabel>(window, "Label25")),
      timer_(this),
      screen_(std::move(screen)) {
    timer_.setObjectName(QStringLiteral("LoepTimer"));
    timer_.setInterval(interval);
    slider_.setRange(0, largest);
    slider_.setPageStep(1);
    QFont font = label_.font();
    font.setPixelSize(labelHeight);
    label_.setFont(font);
    buildCross();
    connect(&slider_, &Fader::valueChanged, this, &Magnifier::follow);
    connect(&timer_, &QTimer::timeout, this, &Magnifier::tick);
    connect(screen_.get(), &ScreenGrab::frozen, this, [this] {
        design_.ToonInfo(
            QStringLiteral("De loep toont een stilstaand beeld; uit en aan geeft een nieuw."), 0,
            90, 0);
    });
    connect(screen_.get(), &ScreenGrab::refused, this, [this] {
        slider_.setValue(0);
        design_.ToonInfo(QStringLiteral("De loep kan het scherm hier niet zien."), 170, 0, 0);
    });
    window.installEventFilter(this);
}

void Magnifier::buildCross() {
    const auto line = [this](const QString& name, const QRect& place) {
        auto* shape = new OverlayShape(OverlayShape::Kind::Line, &pic_);
        shape->setObjectName(name);
        shape->setGeometry(place);
        return shape;
    };
    line1_ = line(QStringLiteral("Line1"), upright);
    line2_ = line(QStringLiteral("Line2"), level);
}

void Magnifier::follow(int enlargement) {
    const bool on = enlargement > 0;
    if (on == timer_.isActive()) {
        return;
    }
    line1_->setVisible(on);
    line2_->setVisible(on);
    if (on) {
        screen_->start();
        timer_.start();
    } else {
        timer_.stop();
        screen_->stop();
        clear();
    }
}

void Magnifier::clear() {
    pic_.surface().Cls();
    pic_.Refresh();
    label_.setText(QStringLiteral("RGB :"));
}

void Magnifier::tick() {
    const int z = slider_.value();
    if (z == 0) {
        return;
    }
    PixelSurface& pic = pic_.surface();
    const int width = roundEven(pic.ScaleWidth());
    const int height = roundEven(pic.ScaleHeight());
    const int sw = roundEven(1.0 / z * width);
    const int sh = roundEven(1.0 / z * height);
    const QPoint corner = screen_->mouse() - QPoint(sw / 2, sh / 2);
    const QImage part = screen_->grab(QRect(corner, QSize(sw, sh)));
    if (part.isNull()) {
        clear();
        return;
    }
    pic.Cls();
    pic.PaintPicture(part, 0, 0, width, height, 0, 0, sw, sh);
    pic_.Refresh();
    const ColorRef c = GetPixel(pic, sampledX, sampledY);
    const QString r = QString::number(redOf(c));
    const QString g = QString::number(greenOf(c));
    const QString b = QString::number(blueOf(c));
    label_.setText(QStringLiteral("RGB : %1, %2, %3 / #%4").arg(r, g, b, HexKleur(r, g, b)));
}

bool Magnifier::eventFilter(QObject* watched, QEvent* event) {
    // A minimised window hides spontaneously, which is no closing.
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        slider_.setValue(0);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kaart
