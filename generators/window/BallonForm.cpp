#include "generators/window/BallonForm.h"

#include "controls/Art.h"
#include "controls/ControlTable.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"

#include <QLabel>
#include <QScrollBar>

namespace kaart {

namespace {

constexpr int leastSide = 10;     // pixels
constexpr int largestSide = 1000; // pixels

const ControlRow controls[] = {
    {ControlKind::Button, "", "Knop(0)", 120, 120, 1740, 1290, "", " Ronde ballon "},
    {ControlKind::Button, "", "Knop(1)", 120, 1500, 1740, 1290, "", " Rechthoekige ballon "},
    {ControlKind::Button, "", "Knop(2)", 120, 2880, 1740, 1290, "", " Denkballon "},
    {ControlKind::Button, "", "Knop(3)", 120, 4260, 1740, 1290, "", " Roepballon "},
    {ControlKind::Value, "", "Vak", 1980, 120, 6000, 5130},
    {ControlKind::Panel, "Vak", "Binnen", 15, 15, 5970, 5100}, // keeps Pic off the frame's lines
    {ControlKind::Surface, "Binnen", "Pic", 0, 0, 15, 15},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::Scroll, "", "VScroll1", 8010, 120, 270, 5130, "", " Hoogte "},
    {ControlKind::Scroll, "", "HScroll1", 1980, 5280, 6000, 270, "", " Breedte "},
    {ControlKind::Label, "", "Label4", 1980, 5790, 1800, 300},
    {ControlKind::Button, "", "FlipHorKnop", 120, 5700, 810, 480, "", " Spiegelbeeld ",
     "spiegel-horizontaal"},
    {ControlKind::Button, "", "FlipVerKnop", 1050, 5700, 810, 480, "", " Vertikaal Spiegelen ",
     "spiegel-verticaal"},
    {ControlKind::Button, "", "ExportKnop", 4860, 5700, 1650, 480, "Export", "", "plaatsen"},
    {ControlKind::Button, "", "CancelKnop", 6630, 5700, 1650, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

} // namespace

BallonForm::BallonForm(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("BallonForm"));
    setWindowTitle(QStringLiteral("Tekstballon"));
    setFixedSize(pixels(8400), pixels(6300));
    setBackColor(*this, windowColor);
    buildControls(*this, controls);
    dress();
    connectControls();
    choose(0);
}

void BallonForm::dress() {
    for (int index = 0; index < static_cast<int>(Img_.size()); ++index) {
        const QString name = QStringLiteral("ballon-%1").arg(index + 1);
        const QSize stored(Balloon::storedWidth, Balloon::storedHeight);
        Img_.at(static_cast<std::size_t>(index)) = renderFlatArt(name, stored);
        auto& button = control<VistaButton>(*this, "Knop", index);
        const QSize size = stored * 2 / 3;
        button.setIcon(QIcon(QStringLiteral(":/art/%1.svg").arg(name)));
        button.setIconSize(size);
    }
    control<QScrollBar>(*this, "VScroll1").setOrientation(Qt::Vertical);
    for (const char* name : {"VScroll1", "HScroll1"}) {
        control<QScrollBar>(*this, name).setRange(leastSide, largestSide);
    }
    auto& back = control<SurfaceView>(*this, "BackPic");
    back.show(balloon_.BackPic());
    back.hide();
}

void BallonForm::connectControls() {
    for (int index = 0; index < static_cast<int>(Img_.size()); ++index) {
        connect(&control<VistaButton>(*this, "Knop", index), &VistaButton::clicked, this,
                [this, index] { choose(index); });
    }
    for (const char* name : {"VScroll1", "HScroll1"}) {
        connect(&control<QScrollBar>(*this, name), &QScrollBar::valueChanged, this,
                &BallonForm::resizeBalloon);
    }
    connect(&control<VistaButton>(*this, "FlipHorKnop"), &VistaButton::clicked, this, [this] {
        balloon_.mirrorHorizontally();
        showBalloon();
    });
    connect(&control<VistaButton>(*this, "FlipVerKnop"), &VistaButton::clicked, this, [this] {
        balloon_.mirrorVertically();
        showBalloon();
    });
    connect(&control<VistaButton>(*this, "ExportKnop"), &VistaButton::clicked, this,
            &BallonForm::exportBalloon);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &BallonForm::reject);
}

void BallonForm::choose(int index) {
    balloon_.choose(Img_.at(static_cast<std::size_t>(index)));
    control<QScrollBar>(*this, "VScroll1").setValue(Balloon::storedHeight);
    control<QScrollBar>(*this, "HScroll1").setValue(Balloon::storedWidth);
    showBalloon();
}

void BallonForm::resizeBalloon() {
    balloon_.resize(control<QScrollBar>(*this, "HScroll1").value(),
                    control<QScrollBar>(*this, "VScroll1").value());
    showBalloon();
}

void BallonForm::showBalloon() {
    const QSize size = balloon_.Pic().bounds().size();
    control<SurfaceView>(*this, "Pic").show(balloon_.Pic());
    control<QLabel>(*this, "Label4")
        .setText(QStringLiteral("%1 x %2 Pixels").arg(size.width()).arg(size.height()));
}

void BallonForm::exportBalloon() {
    handOver(design_, balloon_.Pic().Image(),
             QStringLiteral("Beweeg de clipart met de muis, rechts klikken is plaatsen."), true);
    accept();
}

} // namespace kaart
