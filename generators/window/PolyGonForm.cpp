#include "generators/window/PolyGonForm.h"

#include "controls/ChoiceLists.h"
#include "controls/ControlTable.h"
#include "controls/Labels.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/VistaButton.h"
#include "design/surface/GraphicsCalls.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"
#include "generators/Polygon.h"
#include "generators/window/ColourSwatch.h"
#include "generators/window/SelectView.h"

#include <QComboBox>

#include <array>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::Label, "", "Label3", 120, 90, 750, 240, "Vulkleur"},
    {ControlKind::Value, "", "Vak", 105, 1005, 6780, 6030},
    {ControlKind::Label, "", "Label4", 7080, 1020, 1050, 360, "Zijden"},
    {ControlKind::Combo, "", "Combo1", 8130, 1020, 1110, 360},
    {ControlKind::Label, "", "Label5", 7080, 1500, 1050, 360, "Rotatie"},
    {ControlKind::Combo, "", "Combo3", 8130, 1500, 1110, 360},
    {ControlKind::Label, "", "Label6", 7080, 1980, 1050, 360, "Pendikte"},
    {ControlKind::Combo, "", "Combo2", 8130, 1980, 1110, 360},
    {ControlKind::Label, "", "Label2", 7080, 2520, 2160, 300, "Grootte : 0"},
    {ControlKind::Label, "", "Label1", 7080, 2940, 2160, 1950,
     "Maak met ingedrukte linkermuisknop een rechthoek ter grootte van het te maken object\n"
     "Rechtermuisknop is object vullen met vulkleur"},
    {ControlKind::Button, "", "ResetKnop", 7080, 5340, 2160, 480, "Reset", "", "reset"},
    {ControlKind::Button, "", "ExportKnop", 7080, 5940, 2160, 480, "Export", "", "plaatsen"},
    {ControlKind::Button, "", "CancelKnop", 7080, 6540, 2160, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

constexpr ColorRef firstFillColour = 0x0000FFFF;

constexpr std::array<ColorRef, 26> swatches = {
    0x00000000, 0x00808080, 0x00000080, 0x00008080, 0x00008000, 0x00808000, 0x00800000,
    0x00800080, 0x00004040, 0x00004000, 0x00FF8080, 0x00400040, 0x00004080, 0x00FFFFFF,
    0x00C0C0C0, 0x000000FF, 0x0000FFFF, 0x0000FF00, 0x00FFFF00, 0x00FF0000, 0x00FF00FF,
    0x00C0FFFF, 0x0080FF80, 0x00FFFFC0, 0x00FF80FF, 0x000080FF};

constexpr int swatchesInRow = 13;
constexpr double margin = 3; // between the polygon and its square

} // namespace

PolyGonForm::PolyGonForm(Design& design, QWidget* parent)
    : QDialog(parent),
      design_(design),
      Picture1_(new SelectView(design, SelectView::Frame::Square, {450, 400}, this)) {
    setObjectName(QStringLiteral("PolyGonForm"));
    setWindowTitle(QStringLiteral("Polygon Maker"));
    setFixedSize(pixels(9360), pixels(7140));
    setBackColor(*this, windowColor);
    buildSwatches(); // above all else, also for the Tab key
    buildControls(*this, controls);
    setTabOrder(&control<QWidget>(*this, "lblColor", static_cast<int>(swatches.size())), Picture1_);
    Picture1_->setObjectName(QStringLiteral("Picture1"));
    Picture1_->setAccessibleName(QStringLiteral("Tekenvel"));
    place(*Picture1_, 120, 1020);
    Picture1_->raise();
    makeParagraph(control<QLabel>(*this, "Label1"));
    fillLists();
    connectControls();
    control<QWidget>(*this, "Combo1").setFocus();
}

void PolyGonForm::buildSwatches() {
    const auto make = [this](int index, ColorRef colour) {
        auto* swatch = new ColourSwatch(colour, this);
        swatch->setObjectName(QStringLiteral("lblColor(%1)").arg(index));
        return swatch;
    };
    fillColour_ = make(0, firstFillColour);
    fillColour_->setFocusPolicy(Qt::NoFocus);
    fillColour_->setAttribute(Qt::WA_TransparentForMouseEvents); // it only shows
    place(*fillColour_, 120, 330, 600, 525);
    for (int i = 0; i < static_cast<int>(swatches.size()); ++i) {
        ColourSwatch* swatch = make(i + 1, swatches.at(static_cast<std::size_t>(i)));
        swatch->setAccessibleName(QStringLiteral("Kleur %1").arg(i + 1));
        place(*swatch, 900 + i % swatchesInRow * 300, 225 + i / swatchesInRow * 330, 270, 300);
        connect(swatch, &ColourSwatch::clicked, this,
                [this, swatch] { fillColour_->setColour(swatch->colour()); });
    }
}

void PolyGonForm::fillLists() {
    control<QComboBox>(*this, "Combo1").addItems(numberList(3, 20));
    control<QComboBox>(*this, "Combo1").setCurrentIndex(3);
    control<QComboBox>(*this, "Combo2").addItems(numberList(1, 10));
    control<QComboBox>(*this, "Combo2").setCurrentIndex(1);
    for (int hundredths = 0; hundredths <= 314; ++hundredths) {
        control<QComboBox>(*this, "Combo3").addItem(QString::number(hundredths / 100.0, 'f', 2));
    }
    nameByLabels(*this, {{"lblColor(0)", "Label3"},
                         {"Combo1", "Label4"},
                         {"Combo3", "Label5"},
                         {"Combo2", "Label6"}});
}

void PolyGonForm::connectControls() {
    connect(Picture1_, &SelectView::stretched, this, &PolyGonForm::showSize);
    connect(Picture1_, &SelectView::selected, this, &PolyGonForm::drawPolygon);
    connect(Picture1_, &SelectView::rightPressed, this, &PolyGonForm::fill);
    const auto onClick = [this](const char* button, void (PolyGonForm::*run)()) {
        connect(&control<VistaButton>(*this, button), &VistaButton::clicked, this, run);
    };
    onClick("ResetKnop", &PolyGonForm::reset);
    onClick("ExportKnop", &PolyGonForm::exportPolygon);
    onClick("CancelKnop", &PolyGonForm::reject);
}

void PolyGonForm::showSize() {
    control<QLabel>(*this, "Label2")
        .setText(QStringLiteral("Grootte : %1").arg(Picture1_->SelectShape().Width));
}

void PolyGonForm::drawPolygon() {
    const auto chosen = [this](const char* combo) {
        return control<QComboBox>(*this, combo).currentText();
    };
    const Overlay& square = Picture1_->SelectShape();
    const double half = square.Width / 2;
    PixelSurface& picture = Picture1_->surface();
    picture.DrawWidth = chosen("Combo2").toInt();
    float rotation = chosen("Combo3").toFloat();
    RPolygoneRegulier(picture, rotation, 1, static_cast<float>(square.Left + half),
                      static_cast<float>(square.Top + half), static_cast<float>(half - margin),
                      chosen("Combo1").toInt(), black);
    Picture1_->Refresh();
}

void PolyGonForm::fill(QPoint at) {
    PixelSurface& picture = Picture1_->surface();
    picture.FillColor = fillColour_->colour();
    picture.FillStyle = Fill::Solid;
    FloodFill(picture, at.x(), at.y(), black);
    Picture1_->Refresh();
}

void PolyGonForm::reset() {
    Picture1_->surface().Cls();
    Picture1_->hideSelection();
    Picture1_->Refresh();
}

void PolyGonForm::exportPolygon() {
    const QImage picture = Picture1_->selection();
    if (picture.isNull()) {
        showMessage(this, windowTitle(),
                    QStringLiteral("Selecteer met ingedrukte linkermuisknop een rechthoek\n"
                                   "ter grootte van het object, of klik op Annuleren."));
        return;
    }
    handOver(design_, picture,
             QStringLiteral("Beweeg de clipart met de muis, rechts klikken is plaatsen."), false);
    accept();
}

} // namespace kaart
