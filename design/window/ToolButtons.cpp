#include "design/window/ToolButtons.h"

#include "controls/ControlTable.h"
#include "controls/Icons.h"
#include "controls/VistaButton.h"
#include "design/tools/ShapeTool.h"
#include "design/tools/ToolTable.h"
#include "design/window/MenuTable.h"

#include <QCheckBox>
#include <QGroupBox>

#include <algorithm>

namespace kaart {

namespace {

constexpr int firstLeft = 240;
constexpr int step = 735;
constexpr int top = 10005;
constexpr int side = 690;
constexpr int eraserButton = 4;
constexpr QSize iconSize(30, 30);

/// What the button on the same place shows: the panel that makes room.
const char* rivalPanel(const ToolRow& row) {
    const auto rows = toolTable();
    return std::find_if(rows.begin(), rows.end(),
                        [&row](const ToolRow& other) { return other.index == row.partner; })
        ->opens;
}

bool hasEnabledEntry(const QMenu& menu) {
    const QList<QAction*> entries = menu.actions();
    return std::any_of(entries.begin(), entries.end(), [](const QAction* entry) {
        return entry->isEnabled() && !entry->isSeparator();
    });
}

} // namespace

ToolButtons::ToolButtons(QWidget& window, Design& design, WindowTable windows)
    : QObject(&window), window_(window), design_(design), windows_(windows) {
    for (const ToolRow& row : toolTable()) {
        build(row);
    }
    connect(&design_, &Design::toolChanged, this, &ToolButtons::markTool);
}

void ToolButtons::build(const ToolRow& row) {
    auto* button = new VistaButton(&control<QWidget>(window_, "Inhoud"));
    button->setObjectName(fullName("TekenKnop", row.index));
    button->setToolTip(QString::fromUtf8(row.toolTip));
    button->setIcon(icon(QString::fromUtf8(row.icon)));
    button->setIconSize(iconSize);
    button->setCheckable(row.click == ToolClick::Tool || row.holdsShapes);
    place(*button, firstLeft + step * row.place, top, side, side);
    // Of a pair the button comes first whose panel is not shown yet.
    button->setVisible(row.partner < 0 || row.index < row.partner);
    if (row.click == ToolClick::Window) {
        button->setEnabled(findWindow(windows_, button->objectName()) != nullptr);
    } else if (row.click == ToolClick::PopUp) {
        button->setEnabled(hasEnabledEntry(control<QMenu>(window_, row.opens)));
    }
    connect(button, &QAbstractButton::clicked, this, [this, &row] { click(row); });
}

void ToolButtons::markTool() {
    for (const ToolRow& row : toolTable()) {
        const bool inHand = row.holdsShapes ? shapeTool(design_.TekenModus) != nullptr
                                            : row.tekenModus == design_.TekenModus;
        control<VistaButton>(window_, "TekenKnop", row.index).setChecked(inHand);
    }
}

void ToolButtons::click(const ToolRow& row) {
    control<QCheckBox>(window_, "Check2").setEnabled(false);
    control<QCheckBox>(window_, "Check3").setEnabled(row.index == eraserButton);
    if (*row.hint != '\0') {
        design_.ToonInfo(QString::fromUtf8(row.hint), 0, 90, 0);
    }
    const auto& button = control<VistaButton>(window_, "TekenKnop", row.index);
    switch (row.click) {
    case ToolClick::Tool:
        design_.setTekenModus(row.tekenModus);
        break;
    case ToolClick::PopUp:
        markTool(); // the click itself has not changed the tool yet
        control<QMenu>(window_, row.opens).exec(button.mapToGlobal(button.rect().bottomLeft()));
        break;
    case ToolClick::Window:
        findWindow(windows_, button.objectName())->open(design_, &window_);
        break;
    case ToolClick::ShowPanel:
        showPanel(row);
        break;
    }
    design_.Gewijzigd = true;
}

void ToolButtons::showPanel(const ToolRow& row) {
    control<QWidget>(window_, rivalPanel(row)).hide();
    control<QWidget>(window_, row.opens).show();
    auto& partner = control<VistaButton>(window_, "TekenKnop", row.partner);
    partner.show();
    partner.setFocus();
    control<VistaButton>(window_, "TekenKnop", row.index).hide();
    control<QCheckBox>(window_, "Check4")
        .setEnabled(control<QGroupBox>(window_, "Frame7").isVisibleTo(&window_));
}

} // namespace kaart
