#pragma once

#include "design/session/Design.h"

#include <QMainWindow>
#include <QObject>

namespace kaart {

/// The menus that change the whole picture, and what shows how far that has come: `Bar`, `BarLabel`
/// and the mouse pointer.
class FilterMenu : public QObject {
    Q_OBJECT

public:
    FilterMenu(QMainWindow& window, Design& design);

private:
    void show();

    QMainWindow& window_;
    Design& design_;
    bool hourglass_ = false;
};

} // namespace kaart
