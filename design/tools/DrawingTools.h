#pragma once

#include "design/tools/Tool.h"

namespace kaart {

/// Draws along with the mouse in Tekenkleur.
class FreeHandTool final : public Tool {
public:
    void move(Design& design, QPoint at) const override;
};

/// Stretches an inverted line and draws it in Tekenkleur at the release.
class StraightLineTool final : public Tool {
public:
    void press(Design& design, QPoint at) const override;
    void move(Design& design, QPoint at) const override;
    void release(Design& design, QPoint at) const override;
};

/// Fills the area of one colour under the mouse with Vulkleur, at the press.
class FillTool final : public Tool {
public:
    void press(Design& design, QPoint at) const override;
};

/// Stamps discs in white, or in Vulkleur, up and left of the mouse.
class EraserTool final : public Tool {
public:
    void press(Design& design, QPoint at) const override;
    void move(Design& design, QPoint at) const override;

private:
    static void stamp(Design& design, QPoint at);
};

/// Drags the rectangle that the selection commands work on.
class SelectionTool final : public Tool {
public:
    void press(Design& design, QPoint at) const override;
    void move(Design& design, QPoint at) const override;
    void release(Design& design, QPoint at) const override;
    bool keepsLayer() const override { return true; }
};

} // namespace kaart
