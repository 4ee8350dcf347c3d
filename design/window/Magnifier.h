#pragma once

#include "controls/Fader.h"
#include "controls/SurfaceView.h"
#include "controls/platform/ScreenGrab.h"
#include "design/session/Design.h"

#include <QLabel>
#include <QTimer>

#include <memory>

namespace kaart {

/// The magnifier: LoepPic shows the screen around the mouse, LoepScroll times larger, and Label25
/// the colour at the mouse. 0 is off. Works on past the design, over other programs. Where the
/// screen can't be seen live it magnifies one frozen picture and says so in a hint.
class Magnifier : public QObject {
    Q_OBJECT

public:
    /// `window` holds the controls. It owns the magnifier, and its closing turns it off.
    Magnifier(QWidget& window, Design& design,
              std::unique_ptr<ScreenGrab> screen = makeScreenGrab());

    /// One look at the screen. Does nothing while the magnifier is off.
    void tick();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildCross();
    void follow(int enlargement);
    void clear();

    Design& design_;
    Fader& slider_;
    SurfaceView& pic_;
    QLabel& label_;
    QWidget* line1_ = nullptr;
    QWidget* line2_ = nullptr;
    QTimer timer_;
    std::unique_ptr<ScreenGrab> screen_;
};

} // namespace kaart
