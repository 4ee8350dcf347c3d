#pragma once

#include <QObject>
#include <QPoint>

class QKeyEvent;
class QWidget;

namespace kaart {

/// Lets the keyboard do on a view what the mouse does there, and puts the view in the Tab order.
/// The arrow keys move the pointer by a pixel, with Shift by ten, within the view; Space presses
/// the left button and, at the next time, releases it, so that arrows in between drag; the menu key
/// or Shift and F10 click with the right button. Escape ends a drag, and so does the loss of the
/// focus. The view gets mouse events as ever; the pointer starts where the mouse last was, at first
/// in the middle.
class KeyPointer : public QObject {
    Q_OBJECT

public:
    /// The view owns it.
    explicit KeyPointer(QWidget& view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool press(const QKeyEvent& key);
    void clickRight();
    void move(QPoint by);
    void setDown(bool down);
    void send(int type, Qt::MouseButton button, Qt::MouseButtons buttons);

    QWidget& view_;
    QPoint at_{-1, -1}; ///< in the view, pixels; negative before the first move
    bool down_ = false;
};

} // namespace kaart
