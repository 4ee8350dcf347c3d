#pragma once

#include "design/session/Design.h"
#include "filters/FilterTable.h"

namespace kaart {

/// Runs an entry of the menus that change the whole picture, through the gate: undo copy,
/// hourglass, empty bar, for the array `Filter` the tool number index + 100, the filter, the pass
/// on the surface, and all back. The message loop has a turn after every line, so that entries can
/// be clicked meanwhile.
void filterClick(Design& design, const FilterRow& row);

/// Runs a filter on the array path: the picture is read once, and written back at the end. Does
/// nothing while another one is running; a free number writes the picture back unchanged. When the
/// picture has got another size meanwhile, the result is dropped.
void RunFilter(Design& design, PixelSurface& pic, int filterNumber, std::int32_t parameter);

/// Puts (100 value) \ total in the bar and its label; with a total of 0 the last figure stays. Both
/// are painted at most once per frame.
void ShowProgress(Design& design, int value, int total);

/// What long work begins and ends with: the hourglass, and the bar, empty at first.
void beginProgress(Design& design);
void endProgress(Design& design);

/// The rhythm of work that changes the design's picture line by line.
class LineRhythm final : public RowRhythm {
public:
    explicit LineRhythm(Design& design) : design_(design) {}
    void rowDone(int done, int total) override;

private:
    Design& design_;
    FrameClock clock_;
};

} // namespace kaart
