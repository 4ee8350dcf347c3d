#pragma once

#include <QString>

namespace kaart {

/// A mark that is shown above the canvas without being part of the design. Pixels of the canvas.
struct Overlay {
    bool Visible = false;
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

struct LabelOverlay : Overlay {
    QString Caption;
};

} // namespace kaart
