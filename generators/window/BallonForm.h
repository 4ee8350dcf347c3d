#pragma once

#include "generators/Balloon.h"

#include <QDialog>

#include <array>

namespace kaart {

class Design;

/// "Tekstballon": one of four speech balloons, at any size from 10 to 1000 pixels a side and in any
/// mirroring, handed over as a floating picture. Opens with the first one.
class BallonForm : public QDialog {
    Q_OBJECT

public:
    explicit BallonForm(Design& design, QWidget* parent = nullptr);

private:
    void dress();
    void connectControls();
    void choose(int index);
    void resizeBalloon();
    void showBalloon();
    void exportBalloon();

    Design& design_;
    std::array<QImage, 4> Img_;
    Balloon balloon_;
};

} // namespace kaart
