#include "pictures/window/Dialogform.h"

#include "controls/ControlTable.h"
#include "controls/DialogMenu.h"
#include "controls/Mnemonics.h"
#include "controls/Palette.h"
#include "controls/PlainToolTip.h"
#include "controls/PositionBar.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/PictureGate.h"
#include "pictures/ImportCut.h"
#include "pictures/ThumbnailSheet.h"
#include "pictures/window/SheetView.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 15, 15},
    {ControlKind::Surface, "", "Orgineel", 0, 0, 15, 15},
    {ControlKind::Combo, "", "Drive1", 180, 540, 2700, 360, "", " Schijven "},
    {ControlKind::List, "", "Dir1", 180, 990, 2700, 2430, "", " Mappen "},
    {ControlKind::List, "", "List1", 180, 3510, 2700, 2700, "", " Afbeeldingen "},
    {ControlKind::Label, "", "CounterLabel", 180, 6270, 2700, 270, "0 Afbeeldingen"},
    {ControlKind::Panel, "", "Picture2", 3060, 540, 9030, 6775},
    {ControlKind::Surface, "Picture2", "HelpPic", 90, 90, 8850, 6600},
    {ControlKind::Scroll, "", "VScroll1", 12120, 540, 240, 6780},
    {ControlKind::Surface, "", "Bar", 3060, 7455, 7515, 150},
    {ControlKind::Label, "", "Label1", 10560, 7395, 1800, 270, "Grootte"},
    {ControlKind::Button, "", "OkKnop", 180, 6615, 2700, 480, "OK", "", "ok", "Enter"},
    {ControlKind::Button, "", "CancelKnop", 180, 7185, 2700, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

constexpr ColorRef fieldColor = RGB(220, 220, 220);
constexpr ColorRef sheetColor = RGB(160, 160, 160);
constexpr int sheetLeft = 90;
constexpr int sheetWidth = 8850;
constexpr int scrollStep = 30; // pixels

QString toolTipOf(const QString& name) {
    return plainToolTip(QStringLiteral(" %1 ").arg(name));
}

void clear(SurfaceView& view, ColorRef back) {
    // A hidden view doesn't pass its size on before it is shown.
    view.surface().setSize(view.width(), view.height());
    view.surface().BackColor = back;
    view.surface().Cls();
    view.Refresh();
}

} // namespace

Dialogform::Dialogform(Design& design, QWidget* parent, Wallpaper wallpaper)
    : QDialog(parent), design_(design), wallpaper_(std::move(wallpaper)) {
    setObjectName(QStringLiteral("Dialogform"));
    setWindowTitle(QStringLiteral("Eigen afbeelding invoegen"));
    setFixedSize(pixels(12540), pixels(7845));
    buildControls(*this, controls);
    buildMenus();
    buildViews();
    dress();
    folders_ = new FolderLists(control<QComboBox>(*this, "Drive1"),
                               control<QListWidget>(*this, "Dir1"), this);
    connectControls();
    folders_->open(design.pictureFolder);
    control<QWidget>(*this, "List1").setFocus();
}

void Dialogform::buildMenus() {
    QMenuBar& bar = addMenuBar(*this);
    QMenu* tools = bar.addMenu(QStringLiteral("Tools"));
    tools->setObjectName(QStringLiteral("Tools"));
    addEntry(*tools, "ToolsWallpaper", QStringLiteral("Afbeelding als Bureaublad"),
             [this] { makeWallpaper(); });
    addEntry(*tools, "ToolsExit", QStringLiteral("Annuleren"), [this] { reject(); });
    addEntry(bar, "Help", QStringLiteral("Afbeelding"), [this] { switchView(); });
}

void Dialogform::buildViews() {
    auto& view = control<QWidget>(*this, "Picture2");
    sheet_ = new SheetView(&view);
    sheet_->setObjectName(QStringLiteral("Picture1"));
    place(*sheet_, sheetLeft, 0, sheetWidth, view.height() * twipsPerPixel);
    control<QWidget>(*this, "HelpPic").hide();
    control<QWidget>(*this, "Bar").hide();
    auto& scroll = control<QScrollBar>(*this, "VScroll1");
    makePositionBar(scroll, Qt::Vertical, 0, 0);
    scroll.setSingleStep(scrollStep);
    scroll.setPageStep(view.height());
    scroll.hide();
}

void Dialogform::dress() {
    setBackColor(*this, windowColor);
    for (const char* name : {"Drive1", "Dir1", "List1"}) {
        setForeColor(control<QWidget>(*this, name), RGB(0, 0, 30));
        setBackColor(control<QWidget>(*this, name), fieldColor);
    }
    setBackColor(control<QWidget>(*this, "Picture2"), sheetColor);
    setBackColor(*sheet_, sheetColor);
    clear(control<SurfaceView>(*this, "HelpPic"), RGB(40, 40, 40));
    setForeColor(control<QWidget>(*this, "CounterLabel"), RGB(20, 20, 20));
    control<QLabel>(*this, "Label1").setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    control<QWidget>(*this, "File1").hide();
    auto& orgineel = control<SurfaceView>(*this, "Orgineel");
    orgineel.surface().AutoSize = true;
    orgineel.hide();
    auto& list = control<QListWidget>(*this, "List1");
    list.setAccessibleName(list.toolTip().trimmed());
    list.setToolTip(QStringLiteral("(empty)"));
}

void Dialogform::connectControls() {
    auto& list = control<QListWidget>(*this, "List1");
    connect(folders_, &FolderLists::pathChanged, this, &Dialogform::showFolder);
    connect(&list, &QListWidget::itemSelectionChanged, this, &Dialogform::pick);
    connect(&list, &QListWidget::itemDoubleClicked, this, &Dialogform::takeOver);
    connect(sheet_, &SheetView::clicked, &list, [&list](int row) { list.setCurrentRow(row); });
    connect(sheet_, &SheetView::doubleClicked, this, [this, &list](int row) {
        list.setCurrentRow(row);
        takeOver();
    });
    connect(&builder_, &SheetBuilder::thumbnailMade, this, &Dialogform::addThumbnail);
    connect(&builder_, &SheetBuilder::finished, this, &Dialogform::endSheet);
    connect(&control<QScrollBar>(*this, "VScroll1"), &QScrollBar::valueChanged, sheet_,
            [this](int value) { sheet_->move(sheet_->x(), -value); });
    connect(&control<VistaButton>(*this, "OkKnop"), &VistaButton::clicked, this,
            &Dialogform::takeOver);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &Dialogform::reject);
}

void Dialogform::done(int result) {
    builder_.stop();
    QDialog::done(result);
}

void Dialogform::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && control<QWidget>(*this, "List1").hasFocus()) {
        takeOver();
        return;
    }
    QDialog::keyPressEvent(event);
}

void Dialogform::wheelEvent(QWheelEvent* event) {
    const QPoint at = event->position().toPoint();
    auto& scroll = control<QScrollBar>(*this, "VScroll1");
    if (control<QWidget>(*this, "Picture2").geometry().contains(at) && scroll.isVisible()) {
        QCoreApplication::sendEvent(&scroll, event);
    }
}

QString Dialogform::pathOf(const QString& name) const {
    return folders_->path() + QLatin1Char('/') + name;
}

void Dialogform::showFolder(const QString& folder) {
    builder_.stop();
    design_.pictureFolder = folder;
    selected_ = -1;
    const QStringList names = importFileNames(folder);
    count_ = static_cast<int>(names.size());
    QStringList paths;
    auto& list = control<QListWidget>(*this, "List1");
    list.clear();
    control<QListWidget>(*this, "File1").clear();
    control<QListWidget>(*this, "File1").addItems(names);
    for (const QString& name : names) {
        list.addItem(name);
        list.item(list.count() - 1)->setToolTip(toolTipOf(name));
        paths << pathOf(name);
    }
    control<QLabel>(*this, "CounterLabel").setText(QStringLiteral("%1 Afbeeldingen").arg(count_));
    setCursor(Qt::WaitCursor);
    sheet_->clear();
    clear(control<SurfaceView>(*this, "Bar"), RGB(230, 250, 230));
    control<QWidget>(*this, "Bar").show();
    fitScroll();
    builder_.start(paths);
}

void Dialogform::addThumbnail(int index, const PackedPicture& thumbnail, bool readable) {
    const QString name = control<QListWidget>(*this, "List1").item(index)->text();
    sheet_->add(thumbnail, toolTipOf(name));
    fitScroll();
    // A selection counts more than the sheet that grows behind it.
    if (selected_ < 0) {
        control<QLabel>(*this, "CounterLabel")
            .setText(QStringLiteral("%1 / %2 Afbeeldingen").arg(index + 1).arg(count_));
        formerPath_ = readable ? pathOf(name) : formerPath_;
    }
    auto& bar = control<SurfaceView>(*this, "Bar");
    drawProgress(bar.surface(), index + 1, count_);
    bar.Refresh();
}

void Dialogform::endSheet() {
    control<QWidget>(*this, "Bar").hide();
    fitScroll();
    unsetCursor();
}

void Dialogform::fitScroll() {
    auto& scroll = control<QScrollBar>(*this, "VScroll1");
    const int hidden = sheet_->height() - control<QWidget>(*this, "Picture2").height();
    scroll.setRange(0, hidden);
    scroll.setVisible(hidden > 0 && !sheet_->isHidden());
}

void Dialogform::pick() {
    auto& list = control<QListWidget>(*this, "List1");
    if (list.selectedItems().isEmpty()) {
        return;
    }
    selected_ = list.row(list.selectedItems().first());
    sheet_->select(selected_);
    bringIntoView(selected_);
    const QString name = list.item(selected_)->text();
    control<QLabel>(*this, "CounterLabel").setText(name.trimmed());
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    showLarge(pathOf(name));
    QGuiApplication::restoreOverrideCursor();
}

void Dialogform::showLarge(const QString& path) {
    auto& view = control<SurfaceView>(*this, "HelpPic");
    QSize size;
    const auto picture = loadStretched(path, [&](const QSize& full) {
        size = full;
        return full.boundedTo(view.size());
    });
    if (!picture) {
        return;
    }
    formerPath_ = path;
    view.surface().Cls();
    view.surface().PaintPicture(*picture, 0, 0);
    view.Refresh();
    control<QLabel>(*this, "Label1")
        .setText(QStringLiteral("%1 x %2 Pixels").arg(size.width()).arg(size.height()));
}

void Dialogform::bringIntoView(int index) {
    const QRect cell = sheet_->placeOf(index);
    auto& scroll = control<QScrollBar>(*this, "VScroll1");
    const int lowest = cell.bottom() + 1 - control<QWidget>(*this, "Picture2").height();
    if (!cell.isEmpty()) {
        scroll.setValue(std::max(lowest, std::min(cell.top(), scroll.value())));
    }
}

void Dialogform::switchView() {
    const bool large = !sheet_->isHidden();
    sheet_->setVisible(!large);
    control<QWidget>(*this, "HelpPic").setVisible(large);
    control<QAction>(*this, "Help")
        .setText(large ? QStringLiteral("Tumbnails") : QStringLiteral("Afbeelding"));
    giveMnemonics(*findChild<QMenuBar*>());
    fitScroll();
}

bool Dialogform::loadOrgineel(const QString& path) {
    const auto picture = LoadPicture(path);
    if (picture) {
        control<SurfaceView>(*this, "Orgineel").surface().setPicture(*picture);
    }
    return picture.has_value();
}

void Dialogform::takeOver() {
    builder_.stop();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    // Kept: the label remembers the selected file, and a counter on it is the name of no file.
    if (loadOrgineel(pathOf(control<QLabel>(*this, "CounterLabel").text())) ||
        loadOrgineel(formerPath_)) {
        const QImage picture = control<SurfaceView>(*this, "Orgineel").surface().Picture();
        design_.replace(picture, picture.width() > picture.height() ? 2 : 1);
    }
    QGuiApplication::restoreOverrideCursor();
    accept();
}

void Dialogform::makeWallpaper() {
    if (loadOrgineel(formerPath_)) {
        wallpaper_(this, control<SurfaceView>(*this, "Orgineel").surface().Picture());
    }
}

} // namespace kaart
