#pragma once

#include <QAbstractSlider>

namespace kaart {

/// A horizontal slider with tick marks; its `Value` is QAbstractSlider's value. Dragged with the
/// left mouse button, stepped with the wheel and the keys of every slider; a click beside the
/// handle brings the handle there. Does nothing while minimum and maximum are the same.
class Fader : public QAbstractSlider {
    Q_OBJECT

public:
    explicit Fader(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// The handle, in pixels of the widget.
    QRect handleRect() const;

    /// The distance between two tick marks in values: 1, 2 or 5 times a power of ten, the least
    /// that keeps the marks 6 pixels apart.
    qint64 tickStep() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int span() const;
    int positionOf(int value) const;
    void dragTo(double x);
    void paintGroove(QPainter& painter) const;
    void paintTicks(QPainter& painter) const;
    void paintHandle(QPainter& painter) const;

    double grip_ = 0; ///< from the handle's left edge to where it was taken, pixels
};

} // namespace kaart
