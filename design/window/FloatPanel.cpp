#include "design/window/FloatPanel.h"

#include "controls/ArrowStep.h"
#include "controls/ControlTable.h"
#include "controls/Shades.h"
#include "design/session/Algemeen.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"
#include "design/window/MenuTable.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

namespace kaart {

namespace {

/// Gives the window system a turn as often as a screen shows a new frame.
class FrameRhythm final : public RowRhythm {
public:
    FrameRhythm() { clock_.restart(); }

    void rowDone(int, int) override {
        if (clock_.isDue()) {
            DoEvents();
        }
    }

private:
    FrameClock clock_;
};

void runPlak(Design& design, int index) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    FrameRhythm rhythm;
    Plak(design, index, rhythm);
    QGuiApplication::restoreOverrideCursor();
}

} // namespace

FloatPanel::FloatPanel(QMainWindow& window, Design& design)
    : SurfaceView(&control<QWidget>(window, "Pic")),
      design_(design),
      menu_(control<QMenu>(window, "Plakken")) {
    setObjectName(QStringLiteral("ClipPic"));
    setAccessibleName(QStringLiteral("Zwevende afbeelding"));
    setCursor(Qt::SizeAllCursor);
    setFocusPolicy(Qt::StrongFocus);
    setProperty("showsFocus", true); // a ring outside would hide where it is going to
    show(design.ClipPic);
    follow();
    for (const int index : plakEntries) {
        enableEntry(window, fullName("Plak", index), [&design, index] { runPlak(design, index); });
    }
    connect(&design, &Design::floatChanged, this, &FloatPanel::follow);
}

void FloatPanel::follow() {
    const PixelSurface& clip = design_.ClipPic;
    const QMargins frame(floatFrame, floatFrame, floatFrame, floatFrame);
    const QPoint inside(roundEven(clip.Left) + floatFrame, roundEven(clip.Top) + floatFrame);
    setGeometry(QRect(inside, clip.bounds().size()).marginsAdded(frame));
    update();
    if (clip.Visible && isHidden()) {
        QWidget::show();
        raise();
        setFocus();
    } else if (!clip.Visible) {
        // Or the focus would go to the next control by itself, which may be a text field.
        if (window()->focusWidget() == this) {
            parentWidget()->setFocus();
        }
        hide();
    }
}

void FloatPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(QPoint(floatFrame, floatFrame), Image());
    fillFrame(painter, rect(), floatFrame,
              showsFocusRing(*this) ? warmAccent() : QColor(60, 60, 60));
}

void FloatPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        grabFloat(design_, pixelAt(*event));
    }
}

void FloatPanel::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        dragFloat(design_, pixelAt(*event));
    }
}

void FloatPanel::mouseReleaseEvent(QMouseEvent* event) {
    // Not within a drag, whose release would otherwise pick an entry.
    if (event->button() == Qt::RightButton && event->buttons() == Qt::NoButton) {
        popUp(event->globalPosition().toPoint());
    }
}

void FloatPanel::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        popUp(mapToGlobal(rect().center()));
    }
}

void FloatPanel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (const auto step = arrowStep(key)) {
        moveFloat(design_, *step);
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        popUp(mapToGlobal(rect().center()));
    } else {
        SurfaceView::keyPressEvent(event);
    }
}

void FloatPanel::popUp(const QPoint& at) {
    menu_.setAttribute(Qt::WA_NoMouseReplay);
    menu_.exec(at);
}

} // namespace kaart
