#include "design/tools/Tool.h"

#include "design/tools/DrawingTools.h"
#include "design/tools/ShapeTool.h"

#include <algorithm>
#include <array>

namespace kaart {

namespace {

struct ToolOfMode {
    int tekenModus;
    const Tool* tool;
};

const FreeHandTool freeHand;
const StraightLineTool straightLine;
const FillTool fill;
const EraserTool eraser;
const SelectionTool selection;

class NoTool final : public Tool {};
const NoTool noTool;

const std::array tools = {
    ToolOfMode{0, &freeHand}, ToolOfMode{1, &straightLine}, ToolOfMode{18, &fill},
    ToolOfMode{19, &eraser},  ToolOfMode{20, &selection},
};

} // namespace

const Tool& toolFor(int tekenModus) {
    if (const Tool* shape = shapeTool(tekenModus)) {
        return *shape;
    }
    const auto* found = std::find_if(tools.begin(), tools.end(), [tekenModus](const auto& row) {
        return row.tekenModus == tekenModus;
    });
    return found == tools.end() ? noTool : *found->tool;
}

} // namespace kaart
