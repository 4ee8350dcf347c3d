#include "design/window/SelectionMenu.h"

#include "controls/ControlTable.h"
#include "design/tools/SelectionCommands.h"
#include "design/window/MenuTable.h"

#include <QAction>

namespace kaart {

namespace {

constexpr int ownPhotoEntry = 7;

} // namespace

SelectionMenu::SelectionMenu(QMainWindow& window, Design& design)
    : QObject(&window), design_(design), menu_(control<QMenu>(window, "CopySelectie")) {
    for (const int index : selectionEntries) {
        enableEntry(window, fullName("SelectieCopy", index),
                    [&design, index] { SelectieCopy(design, index); });
    }
    connect(&control<QAction>(window, "SelectieCopy", ownPhotoEntry), &QAction::triggered, this,
            [&design] { design.takeUndo(); });
    connect(&design, &Design::selectionMade, this, &SelectionMenu::popUp);
}

void SelectionMenu::popUp() {
    Design& design = design_;
    // Or a click beside it would reach the canvas as well and begin the next selection.
    menu_.setAttribute(Qt::WA_NoMouseReplay);
    menu_.exec(QCursor::pos());
    hideSelection(design);
}

} // namespace kaart
