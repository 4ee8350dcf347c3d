#pragma once

#include "design/session/Design.h"

#include <array>

namespace kaart {

/// The indexes of the menu arrays `ToolsRanden` (0 to 4) and `GradientRichting` (0 to 5).
inline constexpr std::array edgeEntries = {0, 1, 2, 3, 4};
inline constexpr std::array gradientEntries = {0, 1, 2, 3, 4, 5};

/// Draws index + 1 rings in Tekenkleur along the edge of the design, one pixel further in each.
/// Kept: with the pen of the last press on the canvas.
void ToolsRanden(Design& design, int index);

/// Fills the design with a run from Tekenkleur to Vulkleur: 0 top, 1 left, 2 bottom, 3 right,
/// 4 diagonal, 5 in circles. Kept: the circles too have the pen of the last press.
void GradientRichting(Design& design, int index);

/// What "Schermresolutie" tells, its lines ended by CR LF but the last. `dpi` are the screen's dots
/// to the inch, `pixels` its size in its own dots. Kept: the size is told in dots of 15 twips, so
/// on a screen of another density than 96 dpi it is another than the screen's own.
QString screenInfo(double dpi, const QSize& pixels);

/// What "Speciale Tekens" tells, its lines ended by CR LF but the last.
QString specialCharacters();

} // namespace kaart
