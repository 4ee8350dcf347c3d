#include "design/surface/Flood.h"

#include "design/surface/RunKernels.h"
#include "design/surface/SpanMask.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace kaart {

namespace {

/// A run of filled pixels whose neighbour row, one `step` away, is still to be looked at.
struct Run {
    int y;
    int left;
    int right; ///< excluded
    int step;  ///< -1 up, 1 down
};

/// Pixels of one value. They are filled at once: what was filled has the value no more.
class SurfaceArea {
public:
    SurfaceArea(PixelSpan pixels, Pixel value, Pixel fill)
        : pixels_(pixels), value_(value), fill_(fill) {}

    bool open(int x, int y) const { return pixels_.row(y)[x] == value_; }
    /// The first open column from a closed one on.
    int closedEnd(int x, int y) const {
        return x + static_cast<int>(differentRun(pixels_.row(y) + x, rest(x), value_));
    }
    /// Takes the open run that begins here; answers its end.
    int take(int x, int y) {
        return x + static_cast<int>(replaceRun(pixels_.row(y) + x, rest(x), value_, fill_));
    }

private:
    std::size_t rest(int x) const { return static_cast<std::size_t>(pixels_.width - x); }

    PixelSpan pixels_;
    Pixel value_;
    Pixel fill_;
};

/// Pixels of any value but one. What was filled may still look open, so a mask remembers it.
class BorderArea {
public:
    BorderArea(PixelSpan pixels, Pixel border)
        : pixels_(pixels), border_(border), taken_(QRect(0, 0, pixels.width, pixels.height)) {}

    bool open(int x, int y) const { return pixels_.row(y)[x] != border_ && !taken_.contains(x, y); }
    int closedEnd(int x, int y) const {
        while (x < pixels_.width && !open(x, y)) {
            ++x;
        }
        return x;
    }
    int take(int x, int y) {
        const auto rest = static_cast<std::size_t>(pixels_.width - x);
        const int end = x + static_cast<int>(differentRun(pixels_.row(y) + x, rest, border_));
        taken_.add(y, x, end);
        return end;
    }
    const SpanMask& taken() const { return taken_; }

private:
    PixelSpan pixels_;
    Pixel border_;
    SpanMask taken_;
};

/// A run that was found leaves one task for the row beyond it, and tasks for the row that it was
/// found from only where it is wider than its parent.
template <typename Area>
class Filler {
public:
    Filler(Area& area, int height) : area_(area), height_(height) {}

    QRect fill(int x, int y) {
        const int left = runStart(x, y);
        const int right = area_.take(left, y);
        note({y, left, right, 1}, {y, left, right, 1});
        tasks_.push_back({y, left, right, -1});
        while (!tasks_.empty()) {
            const Run task = tasks_.back();
            tasks_.pop_back();
            look(task);
        }
        return {QPoint(left_, top_), QPoint(right_ - 1, bottom_)};
    }

private:
    /// Finds the open runs beside a filled one.
    void look(const Run& parent) {
        const int y = parent.y + parent.step;
        if (y < 0 || y >= height_) {
            return;
        }
        for (int x = parent.left; x < parent.right;) {
            if (!area_.open(x, y)) {
                x = area_.closedEnd(x, y);
                continue;
            }
            const int left = x == parent.left ? runStart(x, y) : x;
            x = area_.take(left, y);
            note({y, left, x, parent.step}, parent);
        }
    }

    /// Leaves the tasks of a run that was filled.
    void note(const Run& run, const Run& parent) {
        left_ = std::min(left_, run.left);
        right_ = std::max(right_, run.right);
        top_ = std::min(top_, run.y);
        bottom_ = std::max(bottom_, run.y);
        tasks_.push_back(run);
        if (run.left < parent.left - 1) {
            tasks_.push_back({run.y, run.left, parent.left - 1, -run.step});
        }
        if (run.right > parent.right + 1) {
            tasks_.push_back({run.y, parent.right + 1, run.right, -run.step});
        }
    }

    int runStart(int x, int y) const {
        while (x > 0 && area_.open(x - 1, y)) {
            --x;
        }
        return x;
    }

    Area& area_;
    int height_;
    int left_ = std::numeric_limits<int>::max();
    int right_ = 0;
    int top_ = std::numeric_limits<int>::max();
    int bottom_ = 0;
    std::vector<Run> tasks_;
};

} // namespace

QRect floodSurface(PixelSpan pixels, int x, int y, Pixel fill) {
    if (!pixels.contains(x, y)) {
        return {};
    }
    const Pixel value = pixels.row(y)[x];
    if (value == fill) {
        return {x, y, 1, 1};
    }
    SurfaceArea area(pixels, value, fill);
    return Filler<SurfaceArea>(area, pixels.height).fill(x, y);
}

QRect floodBorder(PixelSpan pixels, int x, int y, Pixel border, Pixel fill) {
    if (!pixels.contains(x, y) || pixels.row(y)[x] == border) {
        return {};
    }
    BorderArea area(pixels, border);
    const QRect filled = Filler<BorderArea>(area, pixels.height).fill(x, y);
    area.taken().forEachRun([&](int row, int left, int right) {
        fillRun(pixels.row(row) + left, static_cast<std::size_t>(right - left), fill);
    });
    return filled;
}

} // namespace kaart
