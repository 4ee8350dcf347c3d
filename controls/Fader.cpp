#include "controls/Fader.h"

#include "controls/Shades.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace kaart {

namespace {

constexpr int handleWidth = 11;
constexpr int fullHandleHeight = 16;
constexpr int tickHeight = 4;
constexpr int tickDistance = 6;
constexpr int edge = 2; ///< room for the focus ring left, right and above

} // namespace

Fader::Fader(QWidget* parent) : QAbstractSlider(parent) {
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

QSize Fader::sizeHint() const {
    return {120, edge + fullHandleHeight + 1 + tickHeight};
}

int Fader::span() const {
    return qMax(0, width() - handleWidth - 2 * edge);
}

int Fader::positionOf(int value) const {
    return edge + QStyle::sliderPositionFromValue(minimum(), maximum(), value, span(),
                                                  invertedAppearance());
}

QRect Fader::handleRect() const {
    const int tall = qBound(4, height() - edge - 1 - tickHeight, fullHandleHeight);
    const int top = qMax(0, (height() - tall - 1 - tickHeight + edge) / 2);
    return {positionOf(sliderPosition()), top, handleWidth, tall};
}

qint64 Fader::tickStep() const {
    const double values = static_cast<double>(maximum()) - minimum();
    const double wanted = values * tickDistance / qMax(1, span());
    for (double power = 1;; power *= 10) {
        for (const int digit : {1, 2, 5}) {
            if (digit * power >= qMin(wanted, values)) {
                return static_cast<qint64>(digit * power);
            }
        }
    }
}

void Fader::dragTo(double x) {
    const int position = static_cast<int>(std::lround(x - grip_)) - edge;
    setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), position, span(),
                                                      invertedAppearance()));
}

void Fader::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QRectF handle = handleRect();
    const double x = event->position().x();
    const bool onHandle = x >= handle.left() && x < handle.right();
    grip_ = onHandle ? x - handle.left() : (handleWidth - 1) / 2.0;
    setSliderDown(true);
    if (!onHandle) {
        dragTo(x);
    }
}

void Fader::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) {
        dragTo(event->position().x());
    }
}

void Fader::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(false);
        update();
    }
}

void Fader::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintTicks(painter);
    paintGroove(painter);
    paintHandle(painter);
    if (showsFocusRing(*this)) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
}

void Fader::paintTicks(QPainter& painter) const {
    const QRect handle = handleRect();
    const QColor ground = palette().color(QPalette::Window);
    painter.setPen(mixed(ground, Qt::black, isEnabled() ? 0.5 : 0.22));
    const int bottom = qMin(handle.bottom() + 1 + tickHeight, height() - 1);
    const qint64 step = tickStep();
    for (qint64 value = minimum(); value <= maximum(); value += step) {
        const double x = positionOf(static_cast<int>(value)) + handleWidth / 2.0;
        painter.drawLine(QPointF(x, handle.bottom() + 2.5), QPointF(x, bottom + 0.5));
    }
}

void Fader::paintGroove(QPainter& painter) const {
    const QRect handle = handleRect();
    const QColor ground = palette().color(QPalette::Window);
    const int middleRow = handle.top() + handle.height() / 2;
    const QRectF groove(edge + 3.5, middleRow - 1.5, width() - 2 * edge - 7, 4);
    painter.setPen(mixed(ground, Qt::black, isEnabled() ? 0.4 : 0.2));
    painter.setBrush(mixed(ground, Qt::black, 0.1));
    painter.drawRoundedRect(groove, 2, 2);
    if (!isEnabled() || maximum() <= minimum()) {
        return;
    }
    QRectF passed = groove.adjusted(1, 1, -1, -1);
    const double middle = handle.left() + handleWidth / 2.0;
    invertedAppearance() ? passed.setLeft(middle) : passed.setRight(middle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(warmAccent(), QColor(255, 226, 120), 0.35));
    painter.drawRoundedRect(passed, 1, 1);
}

void Fader::paintHandle(QPainter& painter) const {
    const QRectF body = QRectF(handleRect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor base = palette().color(QPalette::Button);
    const bool warm = isEnabled() && (underMouse() || isSliderDown());
    const QColor glow = warm ? QColor(255, 206, 110) : base;
    QLinearGradient light(body.topLeft(), body.bottomLeft());
    light.setColorAt(0, mixed(glow, Qt::white, isSliderDown() ? 0.3 : 0.85));
    light.setColorAt(1, mixed(glow, Qt::black, isEnabled() ? 0.08 : 0));
    const QColor border = mixed(base, Qt::black, isEnabled() ? 0.5 : 0.22);
    painter.setPen(warm ? mixed(border, warmAccent(), 0.55) : border);
    painter.setBrush(light);
    painter.drawRoundedRect(body, 3, 3);
    const double notch = body.height() / 2 - 4;
    if (notch > 1) {
        painter.drawLine(body.center() - QPointF(0, notch), body.center() + QPointF(0, notch));
    }
}

} // namespace kaart
