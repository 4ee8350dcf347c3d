#pragma once

namespace kaart {

/// What a kernel calls after each finished row or column, so that whoever started it can show
/// progress and let the window system have a turn. Kernels know nothing more of their surroundings.
class RowRhythm {
public:
    RowRhythm() = default;
    RowRhythm(const RowRhythm&) = delete;
    RowRhythm& operator=(const RowRhythm&) = delete;
    virtual ~RowRhythm() = default;

    /// `done` rows of `total` are finished; `done` runs from 1 to `total`.
    virtual void rowDone(int done, int total) = 0;
    /// A pass before the first row is finished; it counts for so many percent of the whole.
    virtual void prepared(int /*percent*/) {}
};

/// For callers that show nothing.
class SilentRhythm final : public RowRhythm {
public:
    void rowDone(int, int) override {}
};

} // namespace kaart
