#pragma once

#include <QAbstractButton>

namespace kaart {

/// A push button with caption (text), picture (icon) or both, a hover state and a tooltip. Drawn in
/// soft raised light of the window's own colour. A button with a picture only takes the tooltip,
/// trimmed, as its accessible name. Reached by Tab, pressed by mouse, Space or Enter; checkable
/// buttons show their state. The picture has iconSize(), 24 pixels unless set, or what fits; it is
/// left out where it doesn't fit beside a caption. Space for one line of caption.
class VistaButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit VistaButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace kaart
