#pragma once

#include <QAbstractButton>

namespace kaart {

/// A push button with caption (text), picture (icon) or both, a hover state and a tooltip. Drawn in
/// soft raised light of the window's own colour. A button with a picture only takes the tooltip,
/// trimmed, as its accessible name. Reached by Tab, pressed by mouse, Space or Enter; checkable
/// buttons show their state. The letter of a shortcut "Alt and a letter" is underlined in the
/// caption, which holds no "&" itself; the tooltip that comes up also names the keys. The picture
/// has iconSize(), 24 pixels unless set, or what fits; it is left out where it doesn't fit beside a
/// caption. Space for one line of caption.
class VistaButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit VistaButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// Names keys that do the same, "Esc" say, for the tooltip. They are handled elsewhere.
    void tellKeys(const QString& keys) { keys_ = keys; }
    /// The tooltip, or the caption without one, and the keys; empty when there is neither tooltip
    /// nor key. toolTip() itself stays as it was set.
    QString toolTipWithKeys() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString keys_;
};

} // namespace kaart
