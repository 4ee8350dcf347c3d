#pragma once

#include "controls/Fader.h"
#include "controls/SurfaceView.h"
#include "design/session/Design.h"

#include <QLabel>
#include <QListWidget>

namespace kaart {

/// The panel `Frame10`: LijstScroll chooses one of the frame files below Lijsten, LijstPic shows it
/// and LijstKnop draws it round the design. The files are read once, at the start. A file that is
/// missing or is no picture leaves the frame that was there.
class FramePanel : public QObject {
    Q_OBJECT

public:
    FramePanel(QWidget& window, Design& design);

private:
    void fillList();
    void choose(int position);
    void load(const QString& fileName);
    void drawRoundDesign();

    Design& design_;
    QListWidget& list_;
    Fader& slider_;
    SurfaceView& pic_;
    QLabel& label_;
};

} // namespace kaart
