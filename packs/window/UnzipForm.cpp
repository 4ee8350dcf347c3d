#include "packs/window/UnzipForm.h"

#include "controls/ControlTable.h"
#include "controls/FolderLists.h"
#include "controls/Labels.h"
#include "controls/Palette.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/FileList.h"
#include "design/surface/Numbers.h"
#include "packs/CGUnzipFiles.h"
#include "packs/window/UnzipBoxes.h"

#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>

namespace kaart {

namespace {

constexpr auto helpText =
    "Met deze optie kun je de extra afbeeldingen met Frame's, Maskers, Achtergronden, Cliparts en "
    "Templates uitpakken (unzippen).\r\n"
    "\r\n"
    "1. Zoek een z.g. Zip-bestand uit de bestandenlijst.\r\n"
    "2. Dit is een bestandsnaam met als laatste 3 letters '.zip'\r\n"
    "3. Selecteer die naam door deze aan te klikken\r\n"
    "4. Klik dan op de button 'Uitpakken' om het uit te pakken.\r\n"
    "5. Het uitpakken gebeurd in dezelfde map als waar het\r\n"
    "     zip-bestand ook staat.\r\n"
    "6. Ga verder met de andere zip-bestanden zoals hier boven.\r\n"
    "\r\n"
    "Download deze zip-bestanden en plaats deze in de gelijknamige mappen. Deze staan in de map "
    "waar het programma ook is geinstalleerd.";

const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 15, 15},
    {ControlKind::List, "", "Dir1", 180, 180, 3000, 2310, "", " Mappen "},
    {ControlKind::List, "", "List1", 180, 2610, 3000, 2310, "", " Zip-bestanden "},
    {ControlKind::Label, "", "Label1", 3420, 180, 5220, 3465, helpText},
    {ControlKind::Label, "", "Label2", 3420, 3765, 5220, 270, "Naam Zip-Bestand"},
    {ControlKind::Button, "", "UnzipKnop", 3420, 4440, 2520, 480, "Uitpakken", "", "uitpakken"},
    {ControlKind::Button, "", "CancelKnop", 6120, 4440, 2520, 480, "Sluiten", "", "ok", "Esc"},
};

} // namespace

UnzipForm::UnzipForm(Design& design, QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("UnzipForm"));
    setWindowTitle(QStringLiteral("Uitpakken (Unzippen)"));
    setFixedSize(pixels(8820), pixels(5100));
    buildControls(*this, controls);
    dress();
    folders_ = new FolderLists(control<QListWidget>(*this, "Dir1"), this);
    connect(folders_, &FolderLists::pathChanged, this, &UnzipForm::listFiles);
    auto& list = control<QListWidget>(*this, "List1");
    connect(&list, &QListWidget::itemSelectionChanged, this, [this, &list] {
        if (!list.selectedItems().isEmpty()) {
            control<QLabel>(*this, "Label2").setText(list.selectedItems().first()->text());
        }
    });
    connect(&control<VistaButton>(*this, "UnzipKnop"), &VistaButton::clicked, this,
            &UnzipForm::unzip);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &UnzipForm::reject);
    folders_->open(design.Folders.program);
    list.setFocus();
}

void UnzipForm::dress() {
    setBackColor(*this, windowColor);
    for (const char* name : {"Dir1", "List1"}) {
        setForeColor(control<QWidget>(*this, name), RGB(0, 0, 40));
        setBackColor(control<QWidget>(*this, name), RGB(230, 230, 240));
    }
    control<QWidget>(*this, "File1").hide();
    makeParagraph(control<QLabel>(*this, "Label1"));
    bar_->setObjectName(QStringLiteral("Bar"));
    bar_->setRange(0, 1000);
    bar_->hide();
    place(*bar_, 3420, 4095, 5220, 240);
}

void UnzipForm::listFiles(const QString& folder) {
    for (const char* list : {"File1", "List1"}) {
        control<QListWidget>(*this, list).clear();
        control<QListWidget>(*this, list).addItems(fileNames(folder, {QStringLiteral("*.zip")}));
    }
}

void UnzipForm::unzip() {
    const QPointer<UnzipForm> self = this;
    const QString folder = folders_->path() + QLatin1Char('/');
    setBusy(true);
    UnzipBoxes boxes(*this, *bar_);
    CGUnzipFiles(boxes).Unzip(folder + control<QLabel>(*this, "Label2").text(), folder);
    if (self) {
        setBusy(false);
    }
}

void UnzipForm::setBusy(bool busy) {
    busy ? setCursor(Qt::WaitCursor) : unsetCursor();
    bar_->reset();
    bar_->setVisible(busy);
    auto& button = control<VistaButton>(*this, "UnzipKnop");
    button.setEnabled(!busy);
    if (!busy) {
        button.setFocus(); // lost when it was disabled
    }
}

} // namespace kaart
