#pragma once

#include <QMenu>
#include <QString>

#include <span>

class QMainWindow;

namespace kaart {

enum class MenuKind {
    Menu,  ///< in the menu bar
    PopUp, ///< hidden until something opens it
    SubMenu,
    Entry,
    Separator
};

/// One row of the menu tree. `menu` is the name of the menu that it stands in, empty for menus of
/// the bar and pop-ups. An index of -1 stands for a name without an array.
struct MenuRow {
    MenuKind kind;
    const char* menu;
    const char* name;
    int index;
    const char* caption;
    const char* shortcut = "";
    bool checkable = false;
};

/// The complete tree, every menu before and in the order of its entries.
std::span<const MenuRow> menuTable();

/// "Richting" and 1 give "Richting(1)"; an index of -1 leaves the name alone.
QString fullName(const char* name, int index);

/// Creates the menus and entries of the table in a window, each with its full name as objectName.
/// Every entry is disabled until somebody connects it with enableEntry.
void buildMenus(QMainWindow& window);

/// Enables an entry and has it call `run`.
void enableEntry(const QMainWindow& window, const QString& name, const std::function<void()>& run);

} // namespace kaart
