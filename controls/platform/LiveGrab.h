#pragma once

#include "controls/platform/ScreenGrab.h"

namespace kaart {

/// The screen itself, as X11 and Windows let every program see it. A platform without a screen to
/// look at gives empty pictures.
class LiveGrab final : public ScreenGrab {
    Q_OBJECT

public:
    bool isLive() const override { return true; }
    void start() override {}
    void stop() override {}
    QRect desktop() const override;
    QPoint mouse() const override;
    QImage grab(const QRect& pixels) const override;
};

} // namespace kaart
