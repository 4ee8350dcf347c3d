#include "controls/KeyPointer.h"

#include "controls/ArrowStep.h"
#include "controls/SurfaceView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace kaart {

namespace {

constexpr int bigStep = 10;

} // namespace

KeyPointer::KeyPointer(QWidget& view) : QObject(&view), view_(view) {
    view.setFocusPolicy(Qt::StrongFocus);
    view.setAccessibleDescription(
        QStringLiteral("De pijltjestoetsen bewegen de aanwijzer, de spatiebalk drukt de "
                       "linkermuisknop in en laat hem weer los."));
    view.installEventFilter(this);
}

bool KeyPointer::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        // Not what a widget on the view has left.
        return view_.hasFocus() && press(static_cast<const QKeyEvent&>(*event));
    case QEvent::FocusOut:
        setDown(false);
        break;
    case QEvent::ContextMenu:
        if (view_.hasFocus() &&
            static_cast<const QContextMenuEvent&>(*event).reason() == QContextMenuEvent::Keyboard) {
            clickRight();
            return true;
        }
        break;
    case QEvent::MouseMove:
        at_ = pixelAt(static_cast<const QMouseEvent&>(*event));
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KeyPointer::clickRight() {
    const QPointer<KeyPointer> self = this;
    move({});
    send(QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
    if (self) {
        send(QEvent::MouseButtonRelease, Qt::RightButton, {});
    }
}

bool KeyPointer::press(const QKeyEvent& key) {
    const bool shift = key.modifiers().testFlag(Qt::ShiftModifier);
    if (const auto step = arrowStep(key.key())) {
        move(*step * (shift ? bigStep : 1));
        return true;
    }
    switch (key.key()) {
    case Qt::Key_Space:
        if (!key.isAutoRepeat()) {
            move({});
            setDown(!down_);
        }
        return true;
    case Qt::Key_F10:
        if (shift) {
            clickRight();
        }
        return shift;
    case Qt::Key_Escape: {
        const bool wasDown = down_;
        setDown(false);
        return wasDown;
    }
    default:
        return false;
    }
}

void KeyPointer::move(QPoint by) {
    const QRect room = view_.rect();
    const QPoint to = (room.contains(at_) ? at_ : room.center()) + by;
    at_ = {qBound(0, to.x(), room.right()), qBound(0, to.y(), room.bottom())};
    QCursor::setPos(view_.mapToGlobal(at_)); // so that the user sees where it is
    send(QEvent::MouseMove, Qt::NoButton, down_ ? Qt::LeftButton : Qt::NoButton);
}

void KeyPointer::setDown(bool down) {
    if (down != down_) {
        down_ = down;
        send(down ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, Qt::LeftButton,
             down ? Qt::LeftButton : Qt::NoButton);
    }
}

void KeyPointer::send(int type, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(static_cast<QEvent::Type>(type), at_, view_.mapToGlobal(at_), button, buttons,
                      {});
    QApplication::sendEvent(&view_, &event);
}

} // namespace kaart
