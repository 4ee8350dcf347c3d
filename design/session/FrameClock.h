#pragma once

#include <QElapsedTimer>

namespace kaart {

/// Tells when a screen can show something new: long work asks it line by line, and paints no more
/// often than that.
class FrameClock {
public:
    /// Whether a frame of 16 ms has gone by since the last one, or none has been shown yet. If so,
    /// the next one begins.
    [[nodiscard]] bool isDue() {
        if (sinceFrame_.isValid() && !sinceFrame_.hasExpired(frame)) {
            return false;
        }
        restart();
        return true;
    }
    /// A frame begins now.
    void restart() { sinceFrame_.start(); }

private:
    static constexpr int frame = 16; // ms
    QElapsedTimer sinceFrame_;
};

} // namespace kaart
