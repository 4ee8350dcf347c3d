#pragma once

#include "design/session/Design.h"

#include <QMainWindow>

namespace kaart {

/// The pop-up `Shapes`: `Vormen(1)` to `Vormen(16)` choose the figure that the mouse draws, mark
/// the chosen entry and enable Check2 "Vorm knippen" for the figures that can be cut. To be made
/// after the panels and before the tool buttons, one of which opens the pop-up.
class ShapeMenu : public QObject {
    Q_OBJECT

public:
    ShapeMenu(QMainWindow& window, Design& design);

private:
    void choose(int index);

    QMainWindow& window_;
    Design& design_;
};

} // namespace kaart
