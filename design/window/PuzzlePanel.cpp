#include "design/window/PuzzlePanel.h"

#include "controls/ControlTable.h"
#include "controls/VistaButton.h"

#include <QComboBox>

namespace kaart {

PuzzlePanel::PuzzlePanel(QWidget& window, Design& design, WindowTable windows)
    : QObject(&window), window_(window), design_(design) {
    // Before the window opens: handlers run in the order of their connection.
    connect(&control<VistaButton>(window, "StartKnop"), &QAbstractButton::clicked, this,
            &PuzzlePanel::takeChoice);
    for (const char* name : {"StartKnop", "ScoreKnop"}) {
        auto& button = control<VistaButton>(window, name);
        const WindowRow* row = findWindow(windows, button.objectName());
        button.setEnabled(row != nullptr);
        if (row != nullptr) {
            connect(&button, &QAbstractButton::clicked, this,
                    [this, row] { row->open(design_, &window_); });
        }
    }
}

void PuzzlePanel::takeChoice() {
    const auto list = [this](const char* name) -> QComboBox& {
        return control<QComboBox>(window_, name);
    };
    design_.Puzzel.PuzzleCols = list("Combo4").currentText().toInt();
    design_.Puzzel.PuzzleRows = list("Combo5").currentText().toInt();
    design_.Puzzel.PuzzleLevel = list("Combo6").currentIndex();
}

} // namespace kaart
