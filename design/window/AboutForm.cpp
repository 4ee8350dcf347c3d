#include "design/window/AboutForm.h"

#include "controls/Art.h"
#include "controls/ControlTable.h"
#include "controls/Palette.h"
#include "controls/VistaButton.h"

#include <QLabel>

#include <array>

namespace kaart {

namespace {

using enum ControlKind;

constexpr std::array table = {
    ControlRow{Label, "", "Image1", 375, 225, 2700, 2100},
    ControlRow{Label, "", "Label1", 3300, 600, 3900, 900,
               "This program is design by Brelmo\nwww.brelmo.example"},
    ControlRow{Button, "", "CancelKnop", 5400, 1815, 1800, 510, "Sluiten", "", "ok", "Esc"},
};

} // namespace

AboutForm::AboutForm(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("AboutForm"));
    setWindowTitle(QStringLiteral("About Me..."));
    setBackColor(*this, windowColor);
    buildControls(*this, table);
    showArt(control<QLabel>(*this, "Image1"), QStringLiteral("About"));
    auto& close = control<VistaButton>(*this, "CancelKnop");
    close.setFocus();
    connect(&close, &QAbstractButton::clicked, this, &QDialog::accept);
    setFixedSize(510, 170);
}

} // namespace kaart
