#include "pictures/window/CopyDialog.h"

#include "controls/ControlTable.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/PictureGate.h"
#include "pictures/ImportCut.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 15, 15},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::Combo, "", "Drive1", 180, 180, 2700, 360, "", " Schijven "},
    {ControlKind::List, "", "Dir1", 180, 630, 2700, 3240, "", " Mappen "},
    {ControlKind::List, "", "List1", 3060, 180, 2700, 3690, "", " Afbeeldingen "},
    {ControlKind::Label, "", "Label1", 3060, 3945, 2700, 270, "0 Afbeeldingen"},
    {ControlKind::Surface, "", "Image1", 5940, 180, 2520, 1650},
    {ControlKind::Label, "", "Label2", 5940, 2775, 2520, 270, "0 x 0 Pixels"},
    {ControlKind::Button, "", "ExportKnop", 5940, 3135, 2520, 480, "Plaatsen", "", "plaatsen"},
    {ControlKind::Button, "", "CancelKnop", 5940, 3735, 2520, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

constexpr ColorRef fieldColor = RGB(230, 230, 230);

} // namespace

CopyDialog::CopyDialog(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("CopyDialog"));
    setWindowTitle(QStringLiteral("Afbeelding Importeren"));
    setFixedSize(pixels(8640), pixels(4395));
    buildControls(*this, controls);
    dress();
    folders_ = new FolderLists(control<QComboBox>(*this, "Drive1"),
                               control<QListWidget>(*this, "Dir1"), this);
    connect(folders_, &FolderLists::pathChanged, this, &CopyDialog::listFiles);
    connect(&control<QListWidget>(*this, "List1"), &QListWidget::itemSelectionChanged, this,
            &CopyDialog::pick);
    connect(&control<VistaButton>(*this, "ExportKnop"), &VistaButton::clicked, this,
            &CopyDialog::exportPicture);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &CopyDialog::reject);
    folders_->open(design.pictureFolder);
    control<QWidget>(*this, "List1").setFocus();
}

void CopyDialog::dress() {
    setBackColor(*this, windowColor);
    for (const char* name : {"Drive1", "Dir1", "List1"}) {
        setForeColor(control<QWidget>(*this, name), RGB(0, 0, 40));
        setBackColor(control<QWidget>(*this, name), fieldColor);
    }
    control<QWidget>(*this, "File1").hide();
    auto& back = control<SurfaceView>(*this, "BackPic");
    back.surface().AutoSize = true;
    back.hide();
    PixelSurface& preview = control<SurfaceView>(*this, "Image1").surface();
    preview.BackColor = fieldColor;
    preview.Cls();
}

void CopyDialog::listFiles(const QString& folder) {
    design_.pictureFolder = folder;
    const QStringList names = importFileNames(folder);
    for (const char* list : {"File1", "List1"}) {
        control<QListWidget>(*this, list).clear();
        control<QListWidget>(*this, list).addItems(names);
    }
    control<QLabel>(*this, "Label1").setText(QStringLiteral("%1 Afbeeldingen").arg(names.size()));
}

void CopyDialog::pick() {
    const auto selected = control<QListWidget>(*this, "List1").selectedItems();
    if (selected.isEmpty()) {
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (const auto picture =
            LoadPicture(folders_->path() + QLatin1Char('/') + selected.first()->text())) {
        PixelSurface& back = control<SurfaceView>(*this, "BackPic").surface();
        back.setPicture(*picture);
        showPreview(back);
    }
    QGuiApplication::restoreOverrideCursor();
}

void CopyDialog::showPreview(const PixelSurface& picture) {
    const QSize size = picture.bounds().size();
    const QSize twips = importPreviewSize(size);
    auto& preview = control<SurfaceView>(*this, "Image1");
    preview.resize(pixels(twips.width()), pixels(twips.height()));
    paintImport(preview.surface(), picture.Image(), preview.surface().bounds());
    preview.Refresh();
    control<QLabel>(*this, "Label2")
        .setText(QStringLiteral("%1 x %2 Pixels").arg(size.width()).arg(size.height()));
}

void CopyDialog::exportPicture() {
    // Not Image: without a picture that is one blank pixel.
    const QImage picture = control<SurfaceView>(*this, "BackPic").surface().Picture();
    if (!picture.isNull()) {
        const QRectF selection(design_.Layer.Left, design_.Layer.Top, design_.SelectieBreedte,
                               design_.SelectieHoogte);
        design_.change([&](PixelSurface& pic) { paintImport(pic, picture, selection); });
    }
    accept();
}

} // namespace kaart
