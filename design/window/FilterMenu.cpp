#include "design/window/FilterMenu.h"

#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "design/tools/FilterClick.h"
#include "design/window/MenuTable.h"

#include <QGuiApplication>
#include <QLabel>

#include <utility>

namespace kaart {

FilterMenu::FilterMenu(QMainWindow& window, Design& design)
    : QObject(&window), window_(window), design_(design) {
    for (const FilterRow& row : filterTable()) {
        if (!row.isSubMenu()) {
            enableEntry(window, fullName(row.name, row.index),
                        [this, &row] { filterClick(design_, row); });
        }
    }
    auto& bar = control<SurfaceView>(window, "Bar");
    bar.show(design.Voortgang.Bar);
    bar.hide();
    connect(&design, &Design::progressChanged, this, &FilterMenu::show);
}

void FilterMenu::show() {
    const Progress& progress = design_.Voortgang;
    auto& bar = control<SurfaceView>(window_, "Bar");
    bar.setVisible(progress.Visible);
    bar.update();
    control<QLabel>(window_, "BarLabel").setText(QStringLiteral("%1%").arg(progress.Percent));
    if (std::exchange(hourglass_, progress.Busy) == progress.Busy) {
        return;
    }
    if (progress.Busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

} // namespace kaart
