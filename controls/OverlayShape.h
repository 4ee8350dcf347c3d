#pragma once

#include <QWidget>

namespace kaart {

/// A thin outline above a picture that takes no part in it and lets the mouse through. It is as
/// large as the widget and seen on light and dark ground alike.
class OverlayShape : public QWidget {
    Q_OBJECT

public:
    enum class Kind {
        Rectangle, ///< dashed
        Ellipse,
        Line ///< all of the widget, which is one pixel wide or high
    };

    OverlayShape(Kind kind, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kind kind_;
};

} // namespace kaart
