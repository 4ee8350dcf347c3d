#include "design/window/MenuTable.h"

#include "controls/Mnemonics.h"
#include "filters/FilterTable.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

namespace kaart {

namespace {

using enum MenuKind;
constexpr int single = -1;

constexpr MenuRow separator(const char* menu, const char* name, int index = single) {
    return {Separator, menu, name, index, "-"};
}

constexpr std::array ownRows = {
    MenuRow{Menu, "", "File", single, "Bestand"},
    MenuRow{Entry, "File", "FileNew", single, "Nieuw", "Ctrl+N"},
    separator("File", "FileStreep1"),
    MenuRow{Entry, "File", "FileOpen", single, "Open Ontwerp", "Ctrl+O"},
    MenuRow{Entry, "File", "FileSave", single, "Ontwerp Opslaan", "Ctrl+S"},
    separator("File", "FileStreep2"),
    MenuRow{Entry, "File", "FilePrint", single, "Afdrukken", "Ctrl+P"},
    separator("File", "FileStreep3"),
    MenuRow{Entry, "File", "FileExit", single, "Exit", "Ctrl+Q"},

    MenuRow{Menu, "", "Efit", single, "Bewerken"},
    MenuRow{Entry, "Efit", "EditUndo", single, "Ongedaan Maken", "Ctrl+Z"},
    MenuRow{Entry, "Efit", "EditClipboard", single, "Copy naar Clipboard", "Ctrl+C"},

    MenuRow{Menu, "", "Orientation", single, "Orientatie"},
    MenuRow{Entry, "Orientation", "Richting", 1, "Portret (Staand)", "", true},
    MenuRow{Entry, "Orientation", "Richting", 2, "Landscape (Liggend)", "", true},

    MenuRow{Menu, "", "Tools", single, "Invoegen"},
    MenuRow{SubMenu, "Tools", "ToolsRand", single, "Buitenrand"},
    MenuRow{Entry, "ToolsRand", "ToolsRanden", 0, "1 Pixels"},
    MenuRow{Entry, "ToolsRand", "ToolsRanden", 1, "2 Pixels"},
    MenuRow{Entry, "ToolsRand", "ToolsRanden", 2, "3 Pixels"},
    MenuRow{Entry, "ToolsRand", "ToolsRanden", 3, "4 Pixels"},
    MenuRow{Entry, "ToolsRand", "ToolsRanden", 4, "5 Pixels"},
    separator("Tools", "ToolsStreep0"),
    MenuRow{Entry, "Tools", "ToolsBorders", 1, "Frame"},
    MenuRow{Entry, "Tools", "ToolsBorders", 2, "Template"},
    MenuRow{Entry, "Tools", "ToolsBorders", 3, "Achtergrond"},
    MenuRow{Entry, "Tools", "ToolsBorders", 4, "Masker"},
    separator("Tools", "ToolsStreep1"),
    MenuRow{Entry, "Tools", "ToolsZwartWit", single, "Vector Plaatjes"},
    MenuRow{Entry, "Tools", "ToolsCliparts", single, "Stickers"},
    MenuRow{Entry, "Tools", "ToolsFoto", single, "Eigen Afbeelding"},

    MenuRow{Menu, "", "Filters", single, "Filters"},
    MenuRow{Menu, "", "Flippen", single, "Omklappen"},

    MenuRow{Menu, "", "Gereedschap", single, "Tools"},
    MenuRow{Entry, "Gereedschap", "GereedschapTekstBallon", single, "Tekstballon"},
    MenuRow{Entry, "Gereedschap", "GereedschapRotatie", single, "Transparante Lijst"},
    MenuRow{Entry, "Gereedschap", "GereedschapPolygon", single, "Polygon Maker"},
    separator("Gereedschap", "GereedschapStreep0"),
    MenuRow{Entry, "Gereedschap", "GereedschapCapture", single, "Schermafdruk"},
    MenuRow{Entry, "Gereedschap", "GereedschapAdressen", single, "Adressenlijst"},
    separator("Gereedschap", "GereedschapStreep1"),
    MenuRow{Entry, "Gereedschap", "GereedschapUnzippen", single, "Uitpakken (Unzippen)"},

    MenuRow{Menu, "", "Help", single, "Help"},
    MenuRow{Entry, "Help", "HelpHelp", single, "Help", "F1"},
    MenuRow{SubMenu, "Help", "HelpResolutie", single, "Beeldscherm"},
    MenuRow{Entry, "HelpResolutie", "Helpscreen", 1, "Schermresolutie"},
    MenuRow{Entry, "HelpResolutie", "Helpscreen", 2, "Wijzig Schermresolutie"},
    separator("Help", "HelpStreep1"),
    MenuRow{Entry, "Help", "HelpMeerSoftware", single, "Meer Software"},
    MenuRow{Entry, "Help", "HelpMeerAfbeeldingen", single, "Meer Afbeeldingen"},
    separator("Help", "HelpStreep2"),
    MenuRow{Entry, "Help", "HelpSpecialeTekens", single, "Speciale Tekens"},

    MenuRow{PopUp, "", "Shapes", single, "Shapes"},
    MenuRow{Entry, "Shapes", "Vormen", 1, "Rectangle", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 2, "Rounded Rectangle", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 3, "Ellipse", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 4, "Triangle", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 5, "Square", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 6, "Pentagon", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 7, "Hexagon", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 8, "Heart", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 9, "Diamond", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 10, "Quatro", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 11, "Raster", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 12, "Open Star", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 13, "Star", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 14, "Rectangle / Square", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 15, "Double Trangle", "", true},
    MenuRow{Entry, "Shapes", "Vormen", 16, "Tree", "", true},

    MenuRow{PopUp, "", "Plakken", single, "Plakken"},
    MenuRow{Entry, "Plakken", "Plak", 1, "Anuleren"},
    separator("Plakken", "Plak", 2),
    MenuRow{Entry, "Plakken", "Plak", 3, "Normaal"},
    MenuRow{Entry, "Plakken", "Plak", 4, "Transparant"},
    MenuRow{Entry, "Plakken", "Plak", 5, "Zonder witte achtergrond"},
    separator("Plakken", "Plak", 6),
    MenuRow{Entry, "Plakken", "Plak", 7, "Flip Horizontaal"},
    MenuRow{Entry, "Plakken", "Plak", 8, "Flip Vertikaal"},

    MenuRow{PopUp, "", "Gradientkleur", single, "Gradientkleur"},
    MenuRow{Entry, "Gradientkleur", "GradientRichting", 0, "Top"},
    MenuRow{Entry, "Gradientkleur", "GradientRichting", 1, "Links"},
    MenuRow{Entry, "Gradientkleur", "GradientRichting", 2, "Bodem"},
    MenuRow{Entry, "Gradientkleur", "GradientRichting", 3, "Rechts"},
    MenuRow{Entry, "Gradientkleur", "GradientRichting", 4, "Diagonaal"},
    MenuRow{Entry, "Gradientkleur", "GradientRichting", 5, "Circulair"},

    MenuRow{PopUp, "", "CopySelectie", single, "Copy"},
    MenuRow{Entry, "CopySelectie", "SelectieCopy", 0, "Annuleren"},
    separator("CopySelectie", "SelectieCopy", 1),
    MenuRow{Entry, "CopySelectie", "SelectieCopy", 2, "Selectie copyeren"},
    MenuRow{Entry, "CopySelectie", "SelectieCopy", 3, "Selectie verwijderen"},
    MenuRow{Entry, "CopySelectie", "SelectieCopy", 4, "Selectie verwijderen met rand"},
    MenuRow{Entry, "CopySelectie", "SelectieCopy", 5, "Selectie met schilderijlijst"},
    separator("CopySelectie", "SelectieCopy", 6),
    MenuRow{Entry, "CopySelectie", "SelectieCopy", 7, "Selectie met eigen foto"},
};

/// A filter's row as a row of the menu.
MenuRow menuRow(const FilterRow& row) {
    return {row.isSubMenu() ? SubMenu : Entry, row.menu, row.name, row.index, row.caption};
}

/// The own rows, and after them what stands in the menus of the filters.
std::vector<MenuRow> wholeTable() {
    std::vector<MenuRow> rows(ownRows.begin(), ownRows.end());
    std::ranges::transform(filterTable(), std::back_inserter(rows), menuRow);
    return rows;
}

QMenu* makeMenu(QMainWindow& window, const MenuRow& row, const QString& caption) {
    switch (row.kind) {
    case Menu:
        return window.menuBar()->addMenu(caption);
    case SubMenu:
        return window.findChild<QMenu*>(QString::fromUtf8(row.menu))->addMenu(caption);
    default:
        return new QMenu(caption, &window);
    }
}

void makeEntry(QMainWindow& window, const MenuRow& row, const QString& caption) {
    auto* menu = window.findChild<QMenu*>(QString::fromUtf8(row.menu));
    QAction* action = row.kind == Separator ? menu->addSeparator() : menu->addAction(caption);
    action->setObjectName(fullName(row.name, row.index));
    if (row.kind == Entry) {
        action->setShortcut(QKeySequence(QString::fromUtf8(row.shortcut)));
        action->setCheckable(row.checkable);
        action->setEnabled(false);
    }
}

} // namespace

std::span<const MenuRow> menuTable() {
    static const std::vector<MenuRow> table = wholeTable();
    return table;
}

QString fullName(const char* name, int index) {
    const QString plain = QString::fromUtf8(name);
    return index == single ? plain : QStringLiteral("%1(%2)").arg(plain).arg(index);
}

void buildMenus(QMainWindow& window) {
    for (const MenuRow& row : menuTable()) {
        const QString caption = QString::fromUtf8(row.caption);
        if (row.kind == Entry || row.kind == Separator) {
            makeEntry(window, row, caption);
        } else {
            makeMenu(window, row, caption)->setObjectName(fullName(row.name, row.index));
        }
    }
    giveMnemonics(window);
}

void enableEntry(const QMainWindow& window, const QString& name, const std::function<void()>& run) {
    auto* action = window.findChild<QAction*>(name);
    action->setEnabled(true);
    QObject::connect(action, &QAction::triggered, &window, run);
}

} // namespace kaart
