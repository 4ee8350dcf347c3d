#pragma once

#include <QString>
#include <QWidget>

#include <span>

namespace kaart {

enum class ControlKind {
    Frame,  ///< titled group box
    Panel,  ///< group without title or border
    Label,  ///< text
    Value,  ///< text in a sunken field
    Swatch, ///< field that shows a colour
    Check,
    Option,
    Combo,     ///< list to choose from
    EditCombo, ///< list whose text can also be typed
    List,
    Text,   ///< one line
    Memo,   ///< several lines
    Scroll, ///< horizontal scroll bar, 0 to 255 until told otherwise
    Fader,
    Button,  ///< VistaButton
    Surface, ///< SurfaceView
    ListView ///< rows of several columns: a QTreeView without a tree
};

/// One control of a window. Place and size are twips within the parent, which stands earlier in the
/// table or is the window itself (empty name). The name becomes the objectName.
struct ControlRow {
    ControlKind kind;
    const char* parent;
    const char* name;
    int left;
    int top;
    int width;
    int height;
    const char* caption = "";
    const char* toolTip = "";
    const char* icon = ""; ///< of a button: a name for icon() of Icons.h
    const char* keys = ""; ///< of a button: keys of its window that do the same
};

/// Creates the controls of a table in a window, hidden or shown as their kind is by default, and
/// gives its captions their letters (Mnemonics.h).
void buildControls(QWidget& window, std::span<const ControlRow> rows);

/// Puts a control at a place given in twips, with a size in twips where one is given.
void place(QWidget& control, int left, int top);
void place(QWidget& control, int left, int top, int width, int height);

/// The control of that name in a window. It must be there: names are fixed at build time.
template <typename T>
T& control(const QWidget& window, const char* name) {
    T* found = window.findChild<T*>(QString::fromUtf8(name));
    Q_ASSERT(found != nullptr);
    return *found;
}
/// The element of a control array: control<VistaButton>(window, "TekenKnop", 3).
template <typename T>
T& control(const QWidget& window, const char* name, int index) {
    T* found =
        window.findChild<T*>(QStringLiteral("%1(%2)").arg(QString::fromUtf8(name)).arg(index));
    Q_ASSERT(found != nullptr);
    return *found;
}

} // namespace kaart
