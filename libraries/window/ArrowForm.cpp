#include "libraries/window/ArrowForm.h"

#include "controls/ControlTable.h"
#include "controls/KeyPointer.h"
#include "controls/Labels.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/PositionBar.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"

#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <QShortcut>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::Value, "", "Label1", 135, 135, 6030, 1530},
    {ControlKind::Surface, "", "Pic", 150, 150, 6000, 1500, "",
     " Klik op een afbeelding (of Ctrl+1 tot Ctrl+4) "},
    {ControlKind::Scroll, "", "HScroll1", 135, 1695, 6030, 255},
    {ControlKind::Label, "", "Label4", 135, 2040, 6030, 750,
     "Verschuif hierboven de scrollbalk voor meer afbeeldingen, klik dan op één van de 4 "
     "afbeeldingen en selecteer hieronder de grootte. Bij de juiste keuze klik op Export."},
    {ControlKind::Value, "", "Label2", 135, 2880, 1530, 1530},
    {ControlKind::Surface, "", "Picture1", 150, 2895, 1500, 1500},
    {ControlKind::Value, "", "Label3", 1785, 2880, 780, 780},
    {ControlKind::Surface, "", "MiniPic", 1800, 2895, 750, 750},
    {ControlKind::Button, "", "RotatieKnop", 2685, 2880, 1680, 480, "Draaien",
     " 90 graden draaien ", "draaien"},
    {ControlKind::Button, "", "MirrowKnop", 4485, 2880, 1680, 480, "Spiegelen", " Spiegelbeeld ",
     "spiegel-horizontaal"},
    {ControlKind::Option, "", "Option1(0)", 1785, 3765, 4380, 300,
     "Grote afbeelding gebruiken (100 x 100 Pixels)"},
    {ControlKind::Option, "", "Option1(1)", 1785, 4095, 4380, 300,
     "Kleine afbeelding gebruiken (50 x 50 Pixels)"},
    {ControlKind::Button, "", "ExportKnop", 135, 4560, 2955, 480, "Export", "", "plaatsen"},
    {ControlKind::Button, "", "CancelKnop", 3210, 4560, 2955, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

} // namespace

ArrowForm::ArrowForm(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("ArrowForm"));
    setWindowTitle(QStringLiteral("Pijlen, Vlaggen en Pins"));
    setFixedSize(pixels(6300), pixels(5175));
    buildControls(*this, controls);
    dress();
    connectControls();
    loadSheet();
}

void ArrowForm::dress() {
    setBackColor(*this, windowColor);
    const std::pair<const char*, const PixelSurface*> views[] = {{"BackPic", &sheet_.BackPic},
                                                                 {"Pic", &sheet_.Pic},
                                                                 {"Picture1", &sheet_.Picture1},
                                                                 {"MiniPic", &sheet_.MiniPic}};
    for (const auto& [name, surface] : views) {
        control<SurfaceView>(*this, name).show(*surface);
    }
    control<QWidget>(*this, "BackPic").hide();
    makeParagraph(control<QLabel>(*this, "Label4"));
    control<QRadioButton>(*this, "Option1", 0).setChecked(true);
    auto& row = control<QScrollBar>(*this, "HScroll1");
    makePositionBar(row, Qt::Horizontal, 0, ArrowSheet::rows - 1);
    row.setPageStep(1);
    row.setAccessibleName(QStringLiteral("Rij"));
    row.setFocus();
}

void ArrowForm::connectControls() {
    control<QWidget>(*this, "Pic").installEventFilter(this);
    control<QWidget>(*this, "Pic").setAccessibleName(QStringLiteral("Afbeeldingen"));
    new KeyPointer(control<QWidget>(*this, "Pic"));
    for (int cell = 0; cell < ArrowSheet::perRow; ++cell) {
        auto* keys =
            new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + cell)), this);
        connect(keys, &QShortcut::activated, this, [this, cell] { pick(cell * ArrowSheet::cell); });
    }
    connect(&control<QScrollBar>(*this, "HScroll1"), &QScrollBar::valueChanged, this,
            [this](int row) {
                sheet_.showRow(row);
                refresh();
            });
    connect(&control<VistaButton>(*this, "RotatieKnop"), &VistaButton::clicked, this, [this] {
        sheet_.turn();
        refresh();
    });
    connect(&control<VistaButton>(*this, "MirrowKnop"), &VistaButton::clicked, this, [this] {
        sheet_.mirror();
        refresh();
    });
    connect(&control<VistaButton>(*this, "ExportKnop"), &VistaButton::clicked, this,
            &ArrowForm::exportPicture);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &ArrowForm::reject);
}

void ArrowForm::loadSheet() {
    if (!sheet_.open(design_.Folders.in(QStringLiteral("Data/Arrows.arr")))) {
        showMessage(parentWidget(), windowTitle(),
                    QStringLiteral("Fout bij het laden van de afbeeldingen!"),
                    QMessageBox::Critical);
    }
}

bool ArrowForm::eventFilter(QObject* watched, QEvent* event) {
    const bool pressed =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (!pressed) {
        return QDialog::eventFilter(watched, event);
    }
    pick(pixelAt(static_cast<const QMouseEvent&>(*event)).x());
    return true;
}

void ArrowForm::pick(int x) {
    sheet_.pick(x);
    refresh();
}

void ArrowForm::refresh() {
    for (const char* view : {"Pic", "Picture1", "MiniPic"}) {
        control<QWidget>(*this, view).update();
    }
}

void ArrowForm::exportPicture() {
    if (sheet_.PictureChosen) {
        const bool large = control<QRadioButton>(*this, "Option1", 0).isChecked();
        handOver(design_, large ? sheet_.Picture1.Image() : sheet_.MiniPic.Image(),
                 QStringLiteral("Beweeg de afbeelding met de muis, rechts klikken is plaatsen."),
                 true);
    }
    accept();
}

} // namespace kaart
