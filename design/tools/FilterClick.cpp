#include "design/tools/FilterClick.h"

#include "design/session/Algemeen.h"

#include <utility>

namespace kaart {

namespace {

constexpr int toolOfFirstFilter = 100;
constexpr int frame = 16; // ms
constexpr double pixelsPerPercent = 3.8;

void emptyBar(Design& design) {
    design.Voortgang.Bar.Cls();
    design.showProgress();
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
    design.Voortgang.Shown.start();
}

bool frameIsDue(const Progress& progress) {
    return !progress.Shown.isValid() || progress.Shown.hasExpired(frame);
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
    if (frameIsDue(design.Voortgang)) {
        showBar(design);
    }
}

void LineRhythm::rowDone(int done, int total) {
    if (frameIsDue(design_.Voortgang)) {
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

void filterClick(Design& design, const FilterRow& row) {
    design.change([&](PixelSurface& pic) {
        design.Voortgang.Busy = true;
        design.Voortgang.Visible = true;
        emptyBar(design);
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
    design.Voortgang.Busy = false;
    design.Voortgang.Visible = false;
    showBar(design);
}

} // namespace kaart
