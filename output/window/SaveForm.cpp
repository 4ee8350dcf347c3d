#include "output/window/SaveForm.h"

#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/session/Design.h"
#include "design/surface/FileList.h"
#include "design/surface/Numbers.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

namespace kaart {

namespace {

constexpr int progressSteps = 300;

const ControlRow controls[] = {
    {ControlKind::Text, "", "Text1", 150, 240, 4485, 360},
    {ControlKind::Surface, "", "Bar", 150, 270, 4485, 300},
    {ControlKind::Label, "", "Label1", 4665, 240, 540, 360, "0%"},
    {ControlKind::Label, "", "Label2", 150, 690, 4950, 570,
     "Typ hierboven een naam in voor het ontwerp en klik daarna op de knop 'Opslaan'"},
    {ControlKind::Button, "", "SaveKnop", 1020, 1440, 1500, 480, "Opslaan", "", "opslaan", "Enter"},
    {ControlKind::Button, "", "CancelKnop", 2730, 1440, 1500, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

} // namespace

SaveForm::SaveForm(Design& design, QWidget* parent)
    : QDialog(parent), design_(design), folders_{design.Folders.program, design.Folders.pictures} {
    setObjectName(QStringLiteral("SaveForm"));
    setWindowTitle(QStringLiteral("Ontwerp Opslaan"));
    setFixedSize(pixels(5250), pixels(2100));
    setBackColor(*this, RGB(170, 240, 240));
    buildControls(*this, controls);
    auto& name = control<QLineEdit>(*this, "Text1");
    setForeColor(name, RGB(40, 40, 60));
    setBackColor(name, RGB(240, 240, 160));
    name.setText(design_.OntwerpNaam);
    name.setAccessibleName(QStringLiteral("Naam van het ontwerp"));
    name.selectAll();
    name.setFocus();
    name.installEventFilter(this);
    control<QLabel>(*this, "Label2").setWordWrap(true);
    control<SurfaceView>(*this, "Bar").hide();
    connect(&name, &QLineEdit::returnPressed, this, &SaveForm::save);
    connect(&control<VistaButton>(*this, "SaveKnop"), &VistaButton::clicked, this, &SaveForm::save);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &SaveForm::reject);
}

void SaveForm::reject() {
    design_.ToonInfo();
    QDialog::reject();
}

bool SaveForm::eventFilter(QObject* watched, QEvent* event) {
    // Kept: a click empties the field, so that a proposed name goes as soon as the user types one.
    if (event->type() == QEvent::MouseButtonPress) {
        control<QLineEdit>(*this, "Text1").clear();
    }
    return QDialog::eventFilter(watched, event);
}

void SaveForm::save() {
    const QString name = control<QLineEdit>(*this, "Text1").text();
    if (name.trimmed().isEmpty()) {
        return;
    }
    design_.OntwerpPad = designPath(folders_, name);
    if (!isRefusedName(name) && BestandBestaat(design_.OntwerpPad) &&
        !askYesNo(this, QStringLiteral(" Exist"),
                  QStringLiteral("Naam ontwerp bestaat al, overschrijven?"))) {
        return;
    }
    if (!saveDesign(folders_, name, design_.Pic().Image())) {
        showMessage(this, QString(), QStringLiteral("Fout bij opslaan als JPG!"));
        return;
    }
    design_.OntwerpPad = jpegCopyPath(folders_, name);
    runProgress();
}

void SaveForm::runProgress() {
    Design& design = design_;
    const QPointer<SaveForm> self = this;
    setCursor(Qt::WaitCursor);
    for (const char* name : {"Text1", "SaveKnop", "CancelKnop"}) {
        control<QWidget>(*this, name).setEnabled(false);
    }
    control<QWidget>(*this, "Text1").hide();
    control<QWidget>(*this, "Bar").show();
    for (int step = 0; step <= progressSteps && self && isVisible(); step += 2) {
        showProgress(step);
        Wacht(progressPause);
    }
    if (self && isVisible()) {
        Wacht(closingPause);
    }
    // The files are written, whatever has become of the window.
    design.Gewijzigd = false;
    design.ToonInfo();
    if (self) {
        unsetCursor();
        accept();
    }
}

void SaveForm::showProgress(int step) {
    auto& bar = control<SurfaceView>(*this, "Bar");
    PixelSurface& surface = bar.surface();
    const double width = surface.ScaleWidth() * step / progressSteps;
    if (step > 0) {
        surface.Line(0, 0, width - 1, surface.ScaleHeight() - 1, RGB(0, 240, 0),
                     LineMode::FilledBox);
    }
    bar.Refresh();
    control<QLabel>(*this, "Label1").setText(QStringLiteral("%1%").arg(roundEven(step / 3.0)));
}

} // namespace kaart
