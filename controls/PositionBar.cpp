#include "controls/PositionBar.h"

#include <QKeyEvent>

namespace kaart {

namespace {

/// Of a lying bar with inverted controls the wheel goes the right way and the arrow keys don't.
class ArrowKeys final : public QObject {
public:
    explicit ArrowKeys(QScrollBar& bar) : QObject(&bar), bar_(bar) { bar.installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Left && key != Qt::Key_Right) {
            return false;
        }
        bar_.triggerAction(key == Qt::Key_Left ? QScrollBar::SliderSingleStepSub
                                               : QScrollBar::SliderSingleStepAdd);
        return true;
    }

private:
    QScrollBar& bar_;
};

} // namespace

void makePositionBar(QScrollBar& bar, Qt::Orientation orientation, int minimum, int maximum) {
    bar.setOrientation(orientation);
    bar.setInvertedControls(true);
    bar.setRange(minimum, maximum);
    bar.setValue(minimum);
    if (orientation == Qt::Horizontal) {
        new ArrowKeys(bar);
    }
}

} // namespace kaart
