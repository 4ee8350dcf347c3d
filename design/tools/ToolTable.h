#pragma once

#include <span>

namespace kaart {

/// What a tool button does beside its hint.
enum class ToolClick {
    Tool,     ///< the left mouse button works in `tekenModus` from now on
    PopUp,    ///< opens the pop-up menu `opens`
    Window,   ///< opens the window that is registered under the button's name
    ShowPanel ///< shows the panel `opens` and the button `partner` in place of its own
};

/// One button of the array TekenKnop.
struct ToolRow {
    int index;
    int place; ///< position in the row of buttons, 0-based
    const char* toolTip;
    const char* icon;
    ToolClick click;
    int tekenModus;
    const char* hint; ///< for InfoLabel; empty leaves it
    const char* opens;
    int partner;              ///< index of the button on the same place, -1 for none
    bool holdsShapes = false; ///< its pop-up chooses a figure as the tool
};

/// All buttons, in the order of their places; of a pair the one shown at the start comes first.
std::span<const ToolRow> toolTable();

} // namespace kaart
