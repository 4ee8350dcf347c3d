#pragma once

#include "design/session/Design.h"
#include "design/window/WindowTable.h"

#include <QWidget>

namespace kaart {

struct ToolRow;

/// The row of tool buttons TekenKnop: chooses TekenModus, opens pop-ups and windows, and switches
/// the panels that share a place. Kept: every click marks the design changed.
class ToolButtons : public QObject {
    Q_OBJECT

public:
    /// Builds the buttons in a window, from the tool table. A button whose window or pop-up has
    /// nothing to offer yet is disabled.
    ToolButtons(QWidget& window, Design& design, WindowTable windows);

private:
    void build(const ToolRow& row);
    /// Shows which button's tool the mouse holds.
    void markTool();
    void click(const ToolRow& row);
    void showPanel(const ToolRow& row);

    QWidget& window_;
    Design& design_;
    WindowTable windows_;
};

} // namespace kaart
