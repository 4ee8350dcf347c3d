#include "controls/FocusRing.h"

#include "controls/Fader.h"
#include "controls/Shades.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>

namespace kaart {

namespace {

constexpr int distance = 3; ///< from the control's edge to the ring's outer edge, pixels
constexpr int thickness = 2;

class Ring : public QWidget {
public:
    explicit Ring(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("FocusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), QApplication::palette().color(QPalette::Highlight));
    }
    void resizeEvent(QResizeEvent*) override {
        setMask(QRegion(rect()) - rect().adjusted(thickness, thickness, -thickness, -thickness));
    }
};

template <typename... Kinds>
bool isAny(const QWidget& widget) {
    return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

bool needsRing(const QWidget& control) {
    return showsFocusRing(control) && !control.isWindow() &&
           control.window()->windowType() != Qt::Popup &&
           !control.property("showsFocus").toBool() &&
           !isAny<QAbstractButton, QComboBox, QLineEdit, QMenuBar, Fader>(control);
}

} // namespace

FocusRing::FocusRing(QApplication& application) : QObject(&application) {
    connect(&application, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* focus) {
    if (control_ != nullptr) {
        control_->removeEventFilter(this);
    }
    delete ring_;
    control_ = nullptr;
    if (focus != nullptr && needsRing(*focus)) {
        control_ = focus;
        control_->installEventFilter(this);
        ring_ = new Ring(control_->parentWidget());
        placeRing();
        ring_->show();
    }
}

void FocusRing::placeRing() {
    const QRect around = control_->geometry().adjusted(-distance, -distance, distance, distance);
    ring_->setGeometry(around & control_->parentWidget()->rect());
    ring_->raise();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (moved && watched == control_ && ring_ != nullptr) {
        placeRing();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kaart
