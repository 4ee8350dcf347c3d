#include "libraries/window/BorderForm.h"

#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/PositionBar.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/session/Design.h"
#include "design/surface/FileList.h"
#include "design/surface/Numbers.h"
#include "design/surface/PictureGate.h"
#include "libraries/ApplyMask.h"

#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>

#include <array>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 15, 15},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::Value, "", "Label1", 150, 150, 4020, 2820},
    {ControlKind::Surface, "", "Picture1", 210, 210, 3900, 2700},
    {ControlKind::Value, "", "Label2", 4320, 150, 2970, 2310},
    {ControlKind::Scroll, "", "VScroll1", 4335, 165, 255, 2280},
    {ControlKind::List, "", "List1", 4605, 165, 2670, 2280},
    {ControlKind::Label, "", "Label3", 4320, 2505, 2970, 270},
    {ControlKind::Button, "", "ExportKnop", 4320, 2835, 2970, 405, "Toepassen",
     " Toepassen op het ontwerp ", "ok"},
    {ControlKind::Button, "", "DelKnop", 4320, 3300, 2970, 405, "Verwijderen",
     " Gekozen bestand verwijderen ", "verwijderen"},
    {ControlKind::Button, "", "CancelKnop", 4320, 3765, 2970, 405, "Annuleren", "", "annuleren",
     "Esc"},
};

struct Library {
    const char* title;
    const char* folder;
    const char* first;
};

constexpr int maskKind = 4;
constexpr std::array<Library, maskKind> libraries = {
    Library{"Frame invoegen", "Frames", "Frame-001.jpg"},
    Library{"Template invoegen", "Templates", "Template-001.jpg"},
    Library{"Achtergrond invoegen", "Achtergronden", "Achtergrond-001.jpg"},
    Library{"Masker invoegen", "Maskers", "Masker-001.jpg"},
};

const Library& libraryOf(int kind) {
    return libraries.at(static_cast<std::size_t>(kind - 1));
}

constexpr QSize lyingFrame(4020, 2820); // twips, of a lying picture
constexpr QSize lyingPreview(3900, 2700);

/// Shows the mask at work, and gives the window system a turn after each row.
class MaskRhythm final : public RowRhythm {
public:
    explicit MaskRhythm(Design& design) : design_(design) {}
    void rowDone(int, int) override {
        if (clock_.isDue()) {
            design_.Refresh();
        }
        DoEvents();
    }

private:
    Design& design_;
    FrameClock clock_;
};

} // namespace

BorderForm::BorderForm(Design& design, QWidget* parent)
    : QDialog(parent),
      design_(design),
      kind_(qBound(1, design.RandSoort, maskKind)),
      folder_(design.Folders.in(QLatin1String(libraryOf(kind_).folder))) {
    setObjectName(QStringLiteral("BorderForm"));
    setWindowTitle(QLatin1String(libraryOf(kind_).title));
    setFixedSize(pixels(7440), pixels(4320));
    buildControls(*this, controls);
    dress();
    openLibrary();
    connectControls();
}

void BorderForm::dress() {
    setBackColor(*this, windowColor);
    control<QWidget>(*this, "File1").hide();
    back_.AutoSize = true;
    auto& back = control<SurfaceView>(*this, "BackPic");
    back.show(back_);
    back.hide();
    auto& list = control<QListWidget>(*this, "List1");
    setForeColor(list, RGB(0, 0, 40));
    setBackColor(list, RGB(230, 230, 250));
    list.setFrameShape(QFrame::NoFrame);
    list.setAccessibleName(QStringLiteral("Afbeeldingen"));
    list.setFocus();
    control<QWidget>(*this, "VScroll1").setAccessibleName(QStringLiteral("Bladeren"));
}

void BorderForm::connectControls() {
    auto& list = control<QListWidget>(*this, "List1");
    connect(&list, &QListWidget::itemSelectionChanged, this, &BorderForm::pick);
    // The selected line too: another picture may be shown meanwhile.
    connect(&list, &QListWidget::itemClicked, this, &BorderForm::pick);
    connect(&control<QScrollBar>(*this, "VScroll1"), &QScrollBar::valueChanged, this,
            &BorderForm::browse);
    connect(&control<VistaButton>(*this, "DelKnop"), &VistaButton::clicked, this,
            &BorderForm::removePicture);
    connect(&control<VistaButton>(*this, "ExportKnop"), &VistaButton::clicked, this,
            &BorderForm::exportPicture);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &BorderForm::reject);
}

void BorderForm::openLibrary() {
    const QStringList names = fileNames(folder_, {QStringLiteral("*.jpg")});
    for (const char* list : {"File1", "List1"}) {
        control<QListWidget>(*this, list).addItems(names);
    }
    const int count = static_cast<int>(names.size());
    auto& bar = control<QScrollBar>(*this, "VScroll1");
    makePositionBar(bar, Qt::Vertical, 1, qMax(1, count));
    bar.setPageStep(1);
    showCount();
    control<QWidget>(*this, "ExportKnop").setEnabled(false);
    if (names.isEmpty()) {
        report(QStringLiteral("Er staan geen afbeeldingen in de map\n%1")
                   .arg(QDir::toNativeSeparators(folder_)));
    } else if (!load(QLatin1String(libraryOf(kind_).first))) {
        browse(1);
    }
}

void BorderForm::showCount() {
    control<QLabel>(*this, "Label3")
        .setText(
            QStringLiteral("%1 Afbeeldingen").arg(control<QListWidget>(*this, "File1").count()));
}

/// A message, also before the window is shown.
void BorderForm::report(const QString& text) {
    showMessage(isVisible() ? this : parentWidget(), windowTitle(), text, QMessageBox::Warning);
}

bool BorderForm::load(const QString& name) {
    const auto picture = LoadPicture(folder_ + QLatin1Char('/') + name);
    if (picture) {
        back_.setPicture(*picture);
        control<QWidget>(*this, "ExportKnop").setEnabled(true);
        showPreview();
    }
    return picture.has_value();
}

void BorderForm::showPreview() {
    const QImage picture = back_.Image();
    const bool upright = picture.width() <= picture.height();
    design_.OntwerpRichting = upright ? QStringLiteral("Staand") : QStringLiteral("Liggend");
    const QSize frame = upright ? lyingFrame.transposed() : lyingFrame;
    const QSize inside = upright ? lyingPreview.transposed() : lyingPreview;
    control<QWidget>(*this, "Label1").resize(pixels(frame.width()), pixels(frame.height()));
    preview_.setSize(pixels(inside.width()), pixels(inside.height()));
    preview_.PaintPicture(picture, 0, 0, preview_.ScaleWidth(), preview_.ScaleHeight(), 0, 0,
                          picture.width(), picture.height());
    control<SurfaceView>(*this, "Picture1").show(preview_);
}

void BorderForm::browse(int position) {
    const auto& files = control<QListWidget>(*this, "File1");
    const QListWidgetItem* file = files.item(position - 1);
    if (file == nullptr) {
        return; // kept: the bar keeps its range when files are deleted
    }
    shownRow_ = position - 1;
    control<QLabel>(*this, "Label3")
        .setText(QStringLiteral("%1 / %2 Afbeeldingen").arg(position).arg(files.count()));
    const QString name = file->text();
    if (!load(name)) {
        report(QStringLiteral("De afbeelding '%1' kan niet worden gelezen.").arg(name));
    }
}

void BorderForm::pick() {
    const auto& list = control<QListWidget>(*this, "List1");
    const int row = list.selectedItems().isEmpty() ? -1 : list.currentRow();
    if (row < 0 || row == shownRow_) {
        return;
    }
    auto& bar = control<QScrollBar>(*this, "VScroll1");
    if (bar.value() == row + 1) {
        browse(row + 1);
    } else {
        bar.setValue(row + 1);
    }
}

void BorderForm::removePicture() {
    auto& list = control<QListWidget>(*this, "List1");
    const auto selected = list.selectedItems();
    const QString name = selected.isEmpty() ? QString() : selected.first()->text();
    if (name.trimmed().isEmpty() ||
        !askYesNo(this, QStringLiteral("Delete"),
                  QStringLiteral("Wil je '%1' voorgoed verwijderen?").arg(name))) {
        return;
    }
    if (!QFile::remove(folder_ + QLatin1Char('/') + name)) {
        report(QStringLiteral("Het bestand '%1' kon niet worden verwijderd.").arg(name));
        return;
    }
    const QSignalBlocker silence(list);
    const int row = list.row(selected.first());
    delete control<QListWidget>(*this, "File1").takeItem(row);
    delete list.takeItem(row);
    list.setCurrentRow(-1);
    shownRow_ = -1;
    preview_.Cls();
    control<QWidget>(*this, "Picture1").update();
    showCount();
}

void BorderForm::exportPicture() {
    const QImage picture = back_.Image();
    design_.OrgineelPic.setPicture(picture);
    if (kind_ == maskKind) {
        exportMask(picture);
    } else {
        design_.replace(picture, design_.isLandscape() ? 2 : 1);
    }
    accept();
}

void BorderForm::exportMask(const QImage& picture) {
    // The rows let window messages through; none of them may reach a button here.
    setEnabled(false);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    MaskRhythm rhythm(design_);
    design_.change([&](PixelSurface& pic) { ApplyMask(pic, picture, rhythm); });
    QGuiApplication::restoreOverrideCursor();
    setEnabled(true);
}

void BorderForm::reject() {
    if (isEnabled()) {
        QDialog::reject();
    }
}

} // namespace kaart
