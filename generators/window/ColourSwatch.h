#pragma once

#include "design/surface/ColorRef.h"

#include <QLabel>

namespace kaart {

/// A label that shows nothing but a colour, to be picked with a mouse click or, once the focus is
/// on it, with Space or Enter.
class ColourSwatch : public QLabel {
    Q_OBJECT

public:
    ColourSwatch(ColorRef colour, QWidget* parent);

    ColorRef colour() const { return colour_; }
    void setColour(ColorRef colour);

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    ColorRef colour_;
};

} // namespace kaart
