#pragma once

#include "design/session/Design.h"

#include <QObject>

namespace kaart {

/// Works the panel `Frame4`: font, style and effects of all texts, their preview, and the text line
/// with its label `TextLabel`, which lets the mouse through to the canvas.
class TextLinePanel : public QObject {
    Q_OBJECT

public:
    TextLinePanel(QWidget& window, Design& design);

private:
    void takeStyle();
    void showPreview();
    void PlaatsKnop();

    QWidget& window_;
    Design& design_;
};

} // namespace kaart
