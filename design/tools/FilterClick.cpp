#include "design/tools/FilterClick.h"

#include "design/session/Algemeen.h"

#include <utility>

namespace kaart {

namespace {

constexpr int toolOfFirstFilter = 100;
constexpr double pixelsPerPercent = 3.8;

void emptyBar(Design& design) {
    design.Voortgang.Bar.Cls();
    design.showProgress();
}

void setBusy(Design& design, bool busy) {
    design.Voortgang.Busy = busy;
    design.Voortgang.Visible = busy;
}

/// Two series of strips, the second partly over the first: a bar that looks round.
void paintBar(Progress& progress) {
    constexpr int strips = 10;
    constexpr int overlap = 7;
    PixelSurface& bar = progress.Bar;
    const double right = progress.Percent * pixelsPerPercent;
    for (int i = 0; i < strips; ++i) {
        bar.Line(0, i, right, i + 1, RGB(0, i * 10 + 130, 0), LineMode::FilledBox);
        bar.Line(0, i + overlap, right, i + overlap + 1, RGB(0, 200 - i * 10, 0),
                 LineMode::FilledBox);
    }
}

void showBar(Design& design) {
    paintBar(design.Voortgang);
    design.showProgress();
}

/// The rhythm of the array path.
class FilterRhythm final : public RowRhythm {
public:
    explicit FilterRhythm(Design& design) : design_(design) { design_.FilterPercent = 0; }

    void prepared(int percent) override {
        prepared_ = percent;
        design_.FilterPercent = percent;
        DoEvents();
    }

    void rowDone(int done, int total) override {
        design_.FilterPercent = done * (100 - prepared_) / total + prepared_;
        DoEvents();
        ShowProgress(design_, done, total - 1);
    }

private:
    Design& design_;
    int prepared_ = 0;
};

} // namespace

void ShowProgress(Design& design, int value, int total) {
    if (total != 0) {
        design.Voortgang.Percent = 100 * value / total;
    }
    if (design.Voortgang.Clock.isDue()) {
        showBar(design);
    }
}

void LineRhythm::rowDone(int done, int total) {
    if (clock_.isDue()) {
        design_.Refresh();
    }
    DoEvents();
    ShowProgress(design_, done - 1, total - 1);
}

void RunFilter(Design& design, PixelSurface& pic, int filterNumber, std::int32_t parameter) {
    if (std::exchange(design.FilterBusy, true)) {
        return;
    }
    const QImage SourceBuf = pic.Image();
    QImage PixelBuf = SourceBuf.copy();
    if (const FilterRoutine routine = filterRoutine(filterNumber)) {
        FilterRhythm rhythm(design);
        routine(spanOf(PixelBuf), spanOf(SourceBuf), parameter, rhythm);
        design.FilterPercent = 100;
        DoEvents();
    }
    pic.setPixels(PixelBuf);
    design.FilterBusy = false;
}

void beginProgress(Design& design) {
    setBusy(design, true);
    emptyBar(design);
}

void endProgress(Design& design) {
    setBusy(design, false);
    showBar(design);
}

void filterClick(Design& design, const FilterRow& row) {
    design.change([&](PixelSurface& pic) {
        beginProgress(design);
        if (QLatin1String(row.name) == QLatin1String("Filter")) {
            design.setTekenModus(row.index + toolOfFirstFilter);
        }
        if (row.number != 0) {
            RunFilter(design, pic, row.number, row.parameter);
        }
        if (row.pass.run != nullptr) {
            emptyBar(design);
            LineRhythm rhythm(design);
            row.pass.run(pic, design.UndoPic(), rhythm);
        }
    });
    endProgress(design);
}

} // namespace kaart
