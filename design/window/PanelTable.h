#pragma once

#include "controls/ControlTable.h"

#include <span>

namespace kaart {

/// The size of the main window's inside, below its menu bar, in twips.
inline constexpr int mainWidth = 17790;
inline constexpr int mainHeight = 10800;

/// Every control of the main window but the canvas and the tool buttons, with their places in
/// "Staand". Twips within the parent.
std::span<const ControlRow> panelTable();

/// Puts the panels that move with the orientation in their place.
void placePanels(QWidget& window, bool landscape);

} // namespace kaart
