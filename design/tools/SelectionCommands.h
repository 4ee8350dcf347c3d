#pragma once

#include "design/session/Design.h"

#include <array>

namespace kaart {

/// The indexes of the menu array `SelectieCopy` that work on the design themselves: cancel, copy
/// into the floating picture, clear, clear with a black edge, clear with the chosen frame.
inline constexpr std::array selectionEntries = {0, 2, 3, 4, 5};

/// Runs one of them on the rectangle of Layer with the size SelectieBreedte x SelectieHoogte, after
/// the undo copy, and hides Layer. The rectangle may exceed the canvas at the right and the bottom;
/// of a copy that part is white. Kept: the cleared box includes both its corners, so it is one
/// pixel wider and higher than the selection, and its edge is drawn with the last pen.
void SelectieCopy(Design& design, int index);

/// Takes the rectangle off the canvas.
void hideSelection(Design& design);

} // namespace kaart
