#pragma once

#include "design/tools/Tool.h"

#include <QPoint>

namespace kaart {

/// The three mouse events of the canvas, common to all tools: undo copy, marks, colour pick, and
/// the hand-over to the tool that TekenModus stood for when the left button went down. A second
/// button during a drag is left alone, so that a drag ends as it began; but the release of any
/// button places a text that hangs.
class CanvasMouse {
public:
    enum class Button { Left, Right, Other };

    explicit CanvasMouse(Design& design) : design_(design) {}

    void press(Button button, QPoint at);
    void move(QPoint at);
    void release(Button button, QPoint at);

    bool dragging() const { return drag_ != nullptr; }

private:
    void moveGom(QPoint at);
    void hideMarks(bool butLayer);

    Design& design_;
    const Tool* drag_ = nullptr;
};

} // namespace kaart
