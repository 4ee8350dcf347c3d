#pragma once

#include "design/session/Design.h"

#include <QMainWindow>
#include <QMenu>

namespace kaart {

/// The pop-up `CopySelectie`, which opens when a selection has been made. Layer stays as long as
/// the pop-up and what it opened are there. Escape or a click beside it changes nothing else.
/// To be made before the menu entries get their windows, since the undo copy comes first.
class SelectionMenu : public QObject {
    Q_OBJECT

public:
    SelectionMenu(QMainWindow& window, Design& design);

private:
    void popUp();

    Design& design_;
    QMenu& menu_;
};

} // namespace kaart
