#pragma once

#include "design/session/Design.h"

#include <QPoint>

namespace kaart {

/// What the left mouse button does on the canvas. Points are pixels of the canvas and may lie
/// outside of it while the button is held. Tools keep no state of their own: a drag lives in the
/// design's module variables and marks. When press is called, the undo copy has been taken and
/// BeginX, BeginY hold the point; VorigeX, VorigeY follow each move.
class Tool {
public:
    Tool() = default;
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;
    virtual ~Tool() = default;

    virtual void press(Design&, QPoint) const {}
    virtual void move(Design&, QPoint) const {}
    virtual void release(Design&, QPoint) const {}
    /// Whether Layer stays when the button comes up, for a command that works on it.
    virtual bool keepsLayer() const { return false; }
};

/// The tool behind a value of TekenModus: the one place where that number picks a tool. Values
/// without a tool of their own give one that does nothing.
const Tool& toolFor(int tekenModus);

} // namespace kaart
