#include "design/window/ShapeMenu.h"

#include "controls/ControlTable.h"
#include "design/tools/ShapeTable.h"
#include "design/window/MenuTable.h"

#include <QAction>
#include <QCheckBox>

namespace kaart {

namespace {

int lastShape() {
    return firstShape + static_cast<int>(shapeTable().size()) - 1;
}

} // namespace

ShapeMenu::ShapeMenu(QMainWindow& window, Design& design)
    : QObject(&window), window_(window), design_(design) {
    for (int index = firstShape; index <= lastShape(); ++index) {
        enableEntry(window, fullName("Vormen", index), [this, index] { choose(index); });
    }
}

void ShapeMenu::choose(int index) {
    design_.setTekenModus(index + 1);
    // Kept: the last entry is left out, so its mark stays once it is set.
    for (int other = firstShape; other < lastShape(); ++other) {
        control<QAction>(window_, "Vormen", other).setChecked(false);
    }
    control<QAction>(window_, "Vormen", index).setChecked(true);
    const ShapeRow& shape = shapeTable()[static_cast<std::size_t>(index - firstShape)];
    control<QCheckBox>(window_, "Check2").setEnabled(shape.canBeCut);
}

} // namespace kaart
