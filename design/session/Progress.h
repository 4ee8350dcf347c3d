#pragma once

#include "design/session/FrameClock.h"
#include "design/surface/PixelSurface.h"

namespace kaart {

/// How far long work on the design has come, as the bar below the canvas shows it.
struct Progress {
    static constexpr int length = 380; ///< of the bar, pixels
    static constexpr int height = 18;  ///< of the bar, pixels

    PixelSurface Bar{length, height};
    bool Visible = false;
    bool Busy = false; ///< the mouse pointer is the hourglass
    int Percent = 0;   ///< what BarLabel says; may exceed 100
    FrameClock Clock;  ///< of the bar
};

} // namespace kaart
