#include "generators/window/BlokkenForm.h"

#include "controls/ChoiceLists.h"
#include "controls/ControlTable.h"
#include "controls/Fader.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/surface/Numbers.h"
#include "design/tools/FilterClick.h"
#include "generators/Blokken.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::Label, "", "Label4", 180, 150, 2700, 300},
    {ControlKind::Fader, "", "Hscroll2", 180, 450, 3000, 480, "", " Transparantie "},
    {ControlKind::Button, "", "TransparantKnop", 3360, 420, 1800, 510, "Transparant", "",
     "transparant"},
    {ControlKind::Label, "", "Label6", 180, 1200, 2160, 300, "Breedte       Transparant"},
    {ControlKind::Combo, "", "BevSize", 180, 1530, 900, 360, "", " Breedte "},
    {ControlKind::Combo, "", "BevLight", 1155, 1530, 900, 360, "", " Transparant "},
    {ControlKind::Check, "", "inoutchk", 2370, 1560, 810, 300, "Out"},
    {ControlKind::Button, "", "KaderKnop", 3360, 1455, 1800, 510, "Kader", "", "kader"},
    {ControlKind::Button, "", "ResetKnop", 180, 2340, 1800, 510, "Reset", "", "reset"},
    {ControlKind::Button, "", "CancelKnop", 3360, 2340, 1800, 510, "Sluiten", "", "ok", "Esc"},
    {ControlKind::Surface, "", "Picture1", 0, 0, 15, 15},
};

constexpr int firstTransparency = 50;

/// Knows no window: this one may be closed while the picture fades.
void fade(Design& design, int transparency) {
    design.change([&](PixelSurface& pic) {
        beginProgress(design);
        LineRhythm rhythm(design);
        FadePicture(pic, transparency, rhythm);
    });
    endProgress(design);
}

} // namespace

BlokkenForm::BlokkenForm(Design& design, QWidget* parent)
    : QDialog(parent), design_(design), Picture1_(design.Pic()) {
    setObjectName(QStringLiteral("BlokkenForm"));
    setWindowTitle(QStringLiteral("Transparante Lijst"));
    setFixedSize(pixels(5340), pixels(3030));
    setBackColor(*this, windowColor);
    buildControls(*this, controls);
    control<SurfaceView>(*this, "Picture1").show(Picture1_);
    control<SurfaceView>(*this, "Picture1").hide();
    connectControls();
    fillControls();
}

void BlokkenForm::fillControls() {
    auto& fader = control<Fader>(*this, "Hscroll2");
    setBackColor(fader, RGB(250, 250, 150));
    control<QLabel>(*this, "Label4").setBuddy(&fader);
    fader.setRange(0, 100);
    fader.setValue(firstTransparency);
    setBackColor(control<QComboBox>(*this, "BevSize"), RGB(230, 230, 240));
    control<QComboBox>(*this, "BevSize").addItems(numberList(5, 20));
    control<QComboBox>(*this, "BevSize").setCurrentIndex(5);
    control<QComboBox>(*this, "BevLight").addItems(numberList(10, 100, 5));
    control<QComboBox>(*this, "BevLight").setCurrentIndex(8);
}

void BlokkenForm::connectControls() {
    connect(&control<Fader>(*this, "Hscroll2"), &Fader::valueChanged, this, [this](int value) {
        control<QLabel>(*this, "Label4").setText(QStringLiteral("Transparantie (%1)").arg(value));
    });
    connect(&control<VistaButton>(*this, "TransparantKnop"), &VistaButton::clicked, this,
            [this] { fade(design_, control<Fader>(*this, "Hscroll2").value()); });
    connect(&control<VistaButton>(*this, "KaderKnop"), &VistaButton::clicked, this,
            &BlokkenForm::bevel);
    connect(&control<VistaButton>(*this, "ResetKnop"), &VistaButton::clicked, this, [this] {
        design_.changeFurther([this](PixelSurface& pic) { pic.setPicture(Picture1_.Image()); });
    });
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &BlokkenForm::reject);
}

void BlokkenForm::bevel() {
    const auto chosen = [this](const char* combo) {
        return control<QComboBox>(*this, combo).currentText();
    };
    design_.changeFurther([&](PixelSurface& pic) {
        BevelPicture(pic, chosen("BevSize").toInt(),
                     control<QCheckBox>(*this, "inoutchk").isChecked() ? 1 : 0,
                     chosen("BevLight").toDouble());
    });
}

} // namespace kaart
