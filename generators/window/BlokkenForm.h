#pragma once

#include "design/surface/PixelSurface.h"

#include <QDialog>

namespace kaart {

class Design;

/// "Transparante Lijst": fades the design toward white, and blends a bevelled frame into its edges,
/// as often as the user likes. Reset brings back the design as it was when the window opened. Kept:
/// only fading takes the undo copy.
class BlokkenForm : public QDialog {
    Q_OBJECT

public:
    explicit BlokkenForm(Design& design, QWidget* parent = nullptr);

private:
    void fillControls();
    void connectControls();
    void bevel();

    Design& design_;
    PixelSurface Picture1_;
};

} // namespace kaart
