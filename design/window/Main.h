#pragma once

#include "design/session/Design.h"
#include "design/window/WindowTable.h"

#include <QMainWindow>
#include <QTimer>

namespace kaart {

class Canvas;

/// The main window: the canvas, the tool buttons and option panels around it, the menu on top. Its
/// contents are tables; this class connects them with the design. It reads the settings file when
/// it is made, and asks about a changed design when it is closed.
class Main : public QMainWindow {
    Q_OBJECT

public:
    Main(Design& design, WindowTable windows);

    /// Asks, and empties the design at Yes.
    void FileNew();
    /// Asks, and sets all option controls back at Yes; the design stays.
    void ResetKnop();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Command {
        const char* entry;
        void (*run)(Main& window);
    };
    static const std::span<const Command> commands;

    void buildPanels();
    void orderTabs();
    void connectControls();
    void connectMenus(WindowTable windows);
    void loadSettings();
    bool saveSettings() const;
    void showOrientation();
    void showMouse(const QPoint& at);
    void tickClock();

    Design& design_;
    QWidget* inside_;
    Canvas* canvas_ = nullptr;
    QTimer timer1_;
};

} // namespace kaart
