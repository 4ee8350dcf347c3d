#pragma once

#include <QString>

#include <algorithm>
#include <span>

class QWidget;

namespace kaart {

class Design;

/// Which window a menu entry or button opens. `opener` is its full name: "FileOpen" or
/// "TekenKnop(7)". `open` shows the window modally and returns when it is closed.
struct WindowRow {
    const char* opener;
    void (*open)(Design& design, QWidget* parent);
};

using WindowTable = std::span<const WindowRow>;

/// The row of an opener, or nullptr when its window does not exist.
inline const WindowRow* findWindow(WindowTable windows, const QString& opener) {
    const auto found = std::find_if(windows.begin(), windows.end(), [&](const WindowRow& row) {
        return opener == QLatin1String(row.opener);
    });
    return found == windows.end() ? nullptr : &*found;
}

} // namespace kaart
