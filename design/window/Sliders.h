#pragma once

#include "design/session/Design.h"

#include <QWidget>

namespace kaart {

/// Connects the colour sliders with Tekenkleur and Vulkleur, their swatches and labels, both ways:
/// a colour that changes elsewhere moves its sliders.
void connectColourSliders(QWidget& window, Design& design);

/// Connects the parameter sliders with their module variables and labels.
void connectParameterSliders(QWidget& window, Design& design);

} // namespace kaart
