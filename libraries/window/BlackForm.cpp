#include "libraries/window/BlackForm.h"

#include "controls/ControlTable.h"
#include "controls/KeyPointer.h"
#include "controls/Labels.h"
#include "controls/Messages.h"
#include "controls/OverlayShape.h"
#include "controls/Palette.h"
#include "controls/PositionBar.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/session/Design.h"
#include "design/surface/DragRect.h"
#include "design/surface/Numbers.h"
#include "design/tools/FloatingPicture.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>

namespace kaart {

namespace {

constexpr int extensionLength = 4; // ".vec"
constexpr int stepsPerPage = 20;

// A cut-out may be larger than the view; it then lies below all that comes after it here.
const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 15, 15},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::Value, "", "Label1", 150, 150, 6765, 3630},
    {ControlKind::Surface, "", "Pic", 210, 210, 6630, 3495},
    {ControlKind::Surface, "", "CopyPic", 210, 210, 15, 15},
    {ControlKind::Value, "", "Label3", 6990, 150, 330, 3630},
    {ControlKind::Value, "", "Label4", 150, 3840, 6765, 330},
    {ControlKind::Scroll, "", "VScroll", 7020, 180, 270, 3570},
    {ControlKind::Scroll, "", "HScroll", 180, 3870, 6705, 270},
    {ControlKind::Label, "", "Label2", 180, 4380, 6600, 660},
    {ControlKind::List, "", "List1", 7410, 150, 2190, 3630},
    {ControlKind::Label, "", "Label5", 7440, 3840, 2160, 270},
    {ControlKind::Button, "", "ExportKnop", 8610, 4500, 930, 360, "Export"},
    {ControlKind::Button, "", "CancelKnop", 7620, 4500, 930, 360, "Sluiten", "", "", "Esc"},
};

} // namespace

BlackForm::BlackForm(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("BlackForm"));
    setWindowTitle(QStringLiteral("Vector Plaatjes"));
    setFixedSize(pixels(9870), pixels(5490));
    buildControls(*this, controls);
    layer_ = new OverlayShape(OverlayShape::Kind::Rectangle, &control<QWidget>(*this, "Pic"));
    layer_->setObjectName(QStringLiteral("Layer"));
    gum_ = new OverlayShape(OverlayShape::Kind::Ellipse, &control<QWidget>(*this, "CopyPic"));
    gum_->setObjectName(QStringLiteral("Gum"));
    dress();
    connectControls();
    fillList();
}

void BlackForm::dress() {
    setBackColor(*this, windowColor);
    const std::pair<const char*, const PixelSurface*> views[] = {
        {"BackPic", &drawing_.BackPic}, {"Pic", &drawing_.Pic}, {"CopyPic", &drawing_.CopyPic}};
    for (const auto& [name, surface] : views) {
        control<SurfaceView>(*this, name).show(*surface);
    }
    for (const char* name : {"File1", "BackPic", "CopyPic"}) {
        control<QWidget>(*this, name).hide();
    }
    makePositionBar(control<QScrollBar>(*this, "HScroll"), Qt::Horizontal, 0, 0);
    makePositionBar(control<QScrollBar>(*this, "VScroll"), Qt::Vertical, 0, 0);
    control<QWidget>(*this, "HScroll").setAccessibleName(QStringLiteral("Naar links en rechts"));
    control<QWidget>(*this, "VScroll").setAccessibleName(QStringLiteral("Omhoog en omlaag"));
    auto& list = control<QListWidget>(*this, "List1");
    setForeColor(list, RGB(40, 0, 0));
    setBackColor(list, RGB(230, 230, 250));
    list.setAccessibleName(QStringLiteral("Afbeeldingen"));
    list.setFocus();
    makeParagraph(control<QLabel>(*this, "Label2"));
    control<QWidget>(*this, "Pic").setCursor(Qt::CrossCursor);
    control<QWidget>(*this, "Pic").setAccessibleName(QStringLiteral("Afbeelding"));
    control<QWidget>(*this, "CopyPic").setAccessibleName(QStringLiteral("Uitsnede"));
    for (const char* name : {"Pic", "CopyPic"}) {
        new KeyPointer(control<QWidget>(*this, name));
    }
}

void BlackForm::connectControls() {
    control<QWidget>(*this, "Pic").installEventFilter(this);
    control<QWidget>(*this, "CopyPic").installEventFilter(this);
    auto& list = control<QListWidget>(*this, "List1");
    connect(&list, &QListWidget::currentRowChanged, this, &BlackForm::showDrawing);
    connect(&list, &QListWidget::itemClicked, this, &BlackForm::showDrawing);
    for (const char* name : {"HScroll", "VScroll"}) {
        connect(&control<QScrollBar>(*this, name), &QScrollBar::valueChanged, this,
                &BlackForm::scroll);
    }
    connect(&control<VistaButton>(*this, "ExportKnop"), &VistaButton::clicked, this,
            &BlackForm::exportCut);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &BlackForm::reject);
}

void BlackForm::fillList() {
    const QString folder = design_.Folders.in(QStringLiteral("Vectors"));
    const QStringList names = lineDrawingNames(folder);
    control<QListWidget>(*this, "File1").addItems(names);
    control<QLabel>(*this, "Label5").setText(QStringLiteral("%1 Afbeeldingen").arg(names.size()));
    auto& list = control<QListWidget>(*this, "List1");
    for (const QString& name : names) {
        list.addItem(name.chopped(extensionLength));
    }
    showDrawing();
    list.setCurrentRow(0);
    if (!QDir(folder).isReadable()) {
        showMessage(parentWidget(), QString(),
                    QStringLiteral("Fout bij het laden van de afbeeldingen!"));
    }
}

void BlackForm::showDrawing() {
    const int row = control<QListWidget>(*this, "List1").currentRow();
    // The click that follows a change of the line doesn't load it again.
    if (row >= 0 && row != loadedRow_) {
        const QString name = control<QListWidget>(*this, "File1").item(row)->text();
        if (drawing_.open(design_.Folders.in(QStringLiteral("Vectors/") + name))) {
            loadedRow_ = row;
        }
    }
    setUpBars();
    showPart();
    control<QWidget>(*this, "CopyPic").hide();
    layer_->hide();
    control<QWidget>(*this, "Pic").show();
    auto& help = control<QLabel>(*this, "Label2");
    setForeColor(help, RGB(50, 50, 50));
    help.setText(QStringLiteral(
        "Maak een keus uit het rechtermenu uit de soort afbeelding, verschuif de afbeelding met de "
        "2 schuifregelaars, trek dan een rechthoek om het object dat je wilt copyeren."));
}

void BlackForm::setUpBars() {
    const QSize overflow = drawing_.overflow();
    const QSize view = drawing_.Pic.bounds().size();
    const auto setUp = [this](const char* name, int maximum, int page) {
        auto& bar = control<QScrollBar>(*this, name);
        bar.setValue(0);
        bar.setEnabled(maximum > 0);
        bar.setMaximum(maximum);
        bar.setPageStep(page);
        bar.setSingleStep(page / stepsPerPage);
    };
    setUp("HScroll", overflow.width(), view.width());
    setUp("VScroll", overflow.height(), view.height());
}

void BlackForm::scroll() {
    DoEvents();
    showPart();
}

void BlackForm::showPart() {
    drawing_.scrollTo({control<QScrollBar>(*this, "HScroll").value(),
                       control<QScrollBar>(*this, "VScroll").value()});
    control<QWidget>(*this, "Pic").update();
}

bool BlackForm::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        watched == &control<QWidget>(*this, "Pic") ? select(mouse) : erase(mouse);
        return true;
    }
    default:
        return QDialog::eventFilter(watched, event);
    }
}

void BlackForm::select(const QMouseEvent& mouse) {
    const QPoint at = pixelAt(mouse);
    if (mouse.type() == QEvent::MouseMove) {
        if (mouse.buttons().testFlag(Qt::LeftButton)) {
            const QPoint begin(roundEven(design_.BeginX), roundEven(design_.BeginY));
            layer_->setGeometry(dragRect(begin, at));
        }
        return;
    }
    if (mouse.type() == QEvent::MouseButtonRelease) {
        if (mouse.button() == Qt::LeftButton) {
            makeCut();
        }
        return;
    }
    design_.BeginX = at.x();
    design_.BeginY = at.y();
    if (mouse.button() == Qt::LeftButton) {
        layer_->setGeometry(QRect(at, QSize(0, 0)));
        layer_->show();
    }
}

void BlackForm::makeCut() {
    drawing_.cut(layer_->geometry());
    control<SurfaceView>(*this, "CopyPic").show(drawing_.CopyPic);
    // First, so that the keyboard goes on in the cut-out and not at the next control.
    control<QWidget>(*this, "CopyPic").show();
    control<QWidget>(*this, "CopyPic").setFocus();
    control<QWidget>(*this, "Pic").hide();
    auto& help = control<QLabel>(*this, "Label2");
    setForeColor(help, RGB(180, 0, 0));
    help.setText(QStringLiteral(
        "Verwijder eventuele overbodige lijnen met ingedrukte linkermuisknop (Gom)\r\n"
        "Klik als laatste op de Exportknop om deze te plaatsen op het orginele ontwerp."));
}

void BlackForm::erase(const QMouseEvent& mouse) {
    if (mouse.type() == QEvent::MouseButtonRelease) {
        if (mouse.button() == Qt::LeftButton) {
            gum_->hide();
        }
        return;
    }
    const QPoint at = pixelAt(mouse);
    gum_->setGeometry(eraserCursor(at));
    if (!mouse.buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    if (mouse.type() != QEvent::MouseMove) {
        gum_->show();
    }
    drawing_.erase(at);
    control<SurfaceView>(*this, "CopyPic").update(drawing_.CopyPic.Refresh());
}

void BlackForm::exportCut() {
    handOver(design_, drawing_.CopyPic.Image(),
             QStringLiteral("Beweeg de afbeelding met de muis, rechts klikken is plaatsen."), true);
    accept();
}

} // namespace kaart
