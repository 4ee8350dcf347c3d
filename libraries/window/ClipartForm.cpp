#include "libraries/window/ClipartForm.h"

#include "controls/ControlTable.h"
#include "controls/KeyPointer.h"
#include "controls/Labels.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/PositionBar.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/ParseNumber.h"
#include "design/tools/FilterClick.h"
#include "design/tools/FloatingPicture.h"
#include "filters/Flip.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QShortcut>

namespace kaart {

namespace {

const ControlRow controls[] = {
    {ControlKind::List, "", "File1", 0, 0, 15, 15},
    {ControlKind::Surface, "", "BackPic", 0, 0, 15, 15},
    {ControlKind::Surface, "", "ExportPic", 0, 0, 15, 15},
    {ControlKind::Value, "", "Label4", 195, 225, 8280, 1830},
    {ControlKind::Surface, "", "Pic", 210, 240, 8250, 1800, "",
     " Klik op een sticker (of Ctrl+1 tot Ctrl+5) "},
    {ControlKind::Value, "", "Label5", 195, 2325, 4980, 5430},
    {ControlKind::Surface, "", "BigPic", 210, 2340, 1650, 1800},
    {ControlKind::Label, "", "Label2", 5490, 2130, 2100, 240, "Bibliotheek"},
    {ControlKind::Combo, "", "Combo1", 5490, 2400, 2100, 360},
    {ControlKind::Scroll, "", "VScroll2", 5190, 2325, 210, 5430},
    {ControlKind::Label, "", "Label3", 5490, 2850, 2985, 240},
    {ControlKind::Label, "", "Label1", 5490, 3300, 2985, 240, "Grootte Sticker (110x120)"},
    {ControlKind::Button, "", "HorKnop", 5490, 3630, 2985, 480, "Spiegelbeeld", "",
     "spiegel-horizontaal"},
    {ControlKind::Button, "", "BWKnop", 5490, 4200, 2985, 480, "Verwijder alle kleuren", "",
     "zwart-wit"},
    {ControlKind::Label, "", "InfoLabel", 5490, 4890, 2985, 1680,
     "Kies met de bovenstaande keuzebalk de soort sticker, klik daarna op één van de 5 stickers om "
     "deze te selecteren, de grootte kun je wijzigen met de verschuifbare scrolbalk, klik als "
     "laatste op de Exportknop."},
    {ControlKind::Button, "", "ExportKnop", 5490, 6705, 2985, 480, "Export", "", "plaatsen"},
    {ControlKind::Button, "", "CancelKnop", 5490, 7275, 2985, 480, "Annuleren", "", "annuleren",
     "Esc"},
};

/// Shows the sticker and the bar of progress row by row.
class StickerRhythm final : public RowRhythm {
public:
    StickerRhythm(Design& design, SurfaceView& view, PixelSurface& sticker)
        : design_(design), view_(view), sticker_(sticker) {}

    void rowDone(int done, int total) override {
        if (clock_.isDue() || done == total) {
            view_.update(sticker_.Refresh());
        }
        DoEvents();
        ShowProgress(design_, done - 1, total - 1);
    }

private:
    Design& design_;
    SurfaceView& view_;
    PixelSurface& sticker_;
    FrameClock clock_;
};

} // namespace

ClipartForm::ClipartForm(Design& design, QWidget* parent) : QDialog(parent), design_(design) {
    setObjectName(QStringLiteral("ClipartForm"));
    setWindowTitle(QStringLiteral("Stickers Plakken"));
    setFixedSize(pixels(8670), pixels(7980));
    buildControls(*this, controls);
    dress();
    connectControls();
    fillList();
}

void ClipartForm::dress() {
    setBackColor(*this, RGB(220, 220, 190));
    const std::pair<const char*, const PixelSurface*> views[] = {{"BackPic", &sticker_.BackPic},
                                                                 {"ExportPic", &sticker_.ExportPic},
                                                                 {"Pic", &sticker_.Pic},
                                                                 {"BigPic", &sticker_.BigPic}};
    for (const auto& [name, surface] : views) {
        control<SurfaceView>(*this, name).show(*surface);
    }
    for (const char* name : {"File1", "BackPic", "ExportPic"}) {
        control<QWidget>(*this, name).hide();
    }
    auto& combo = control<QComboBox>(*this, "Combo1");
    setForeColor(combo, RGB(0, 0, 40));
    setBackColor(combo, RGB(220, 220, 240));
    nameByLabels(*this, {{"Combo1", "Label2"}});
    auto& size = control<QScrollBar>(*this, "VScroll2");
    makePositionBar(size, Qt::Vertical, 110, stickerCell.width());
    size.setPageStep(20);
    size.setAccessibleName(QStringLiteral("Grootte Sticker"));
    makeParagraph(control<QLabel>(*this, "InfoLabel"));
}

void ClipartForm::connectControls() {
    control<QWidget>(*this, "Pic").installEventFilter(this);
    control<QWidget>(*this, "Pic").setAccessibleName(QStringLiteral("Stickers"));
    new KeyPointer(control<QWidget>(*this, "Pic"));
    for (int cell = 0; cell < 5; ++cell) {
        auto* keys =
            new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + cell)), this);
        const int middle = (2 * cell + 1) * shownSheet.width() / 10;
        connect(keys, &QShortcut::activated, this,
                [this, middle] { pick(QPoint(middle, shownSheet.height() / 2)); });
    }
    connect(&control<QComboBox>(*this, "Combo1"), &QComboBox::currentTextChanged, this,
            &ClipartForm::openSheet);
    connect(&control<QScrollBar>(*this, "VScroll2"), &QScrollBar::valueChanged, this,
            &ClipartForm::resizeSticker);
    const std::pair<const char*, void (ClipartForm::*)()> buttons[] = {
        {"HorKnop", &ClipartForm::mirror},
        {"BWKnop", &ClipartForm::removeColours},
        {"ExportKnop", &ClipartForm::exportSticker}};
    for (const auto& [name, clicked] : buttons) {
        connect(&control<VistaButton>(*this, name), &VistaButton::clicked, this, clicked);
    }
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &ClipartForm::reject);
}

void ClipartForm::fillList() {
    const QStringList names = stickerSheetNames(design_.Folders.in(QStringLiteral("Stickers")));
    control<QListWidget>(*this, "File1").addItems(names);
    control<QLabel>(*this, "Label3")
        .setText(QStringLiteral("Totaal %1 Stickers").arg(names.size()));
    // The first one becomes the current one, and so loads the first sheet.
    control<QComboBox>(*this, "Combo1").addItems(names);
}

void ClipartForm::openSheet(const QString& name) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isSheet = sticker_.openSheet(design_.Folders.in(QStringLiteral("Stickers/") + name));
    QGuiApplication::restoreOverrideCursor();
    control<QWidget>(*this, "Pic").update();
    if (!isSheet) {
        showMessage(isVisible() ? this : parentWidget(), QStringLiteral("Error"),
                    QStringLiteral("Geen orginele sticker!"), QMessageBox::Critical);
    }
}

bool ClipartForm::eventFilter(QObject* watched, QEvent* event) {
    const bool pressed =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (!pressed) {
        return QDialog::eventFilter(watched, event);
    }
    pick(pixelAt(static_cast<const QMouseEvent&>(*event)));
    return true;
}

void ClipartForm::pick(QPoint at) {
    sticker_.pick(at);
    showSticker();
}

void ClipartForm::resizeSticker(int width) {
    sticker_.resize(width);
    showSticker();
    control<QLabel>(*this, "Label1")
        .setText(QStringLiteral("Grootte Sticker (%1x%2)").arg(width).arg(stickerHeight(width)));
}

void ClipartForm::mirror() {
    FlipHorizontal(sticker_.BigPic);
    showSticker();
}

void ClipartForm::showSticker() {
    control<SurfaceView>(*this, "BigPic").show(sticker_.BigPic);
}

void ClipartForm::removeColours() {
    const QPointer<ClipartForm> self = this;
    setCursor(Qt::WaitCursor);
    const QString answer = QInputDialog::getText(
        this, QString(),
        QStringLiteral("Geef een getal voor zwart-wit balans (0-255, hoge waarde is donkerder)"),
        QLineEdit::Normal, QStringLiteral("40"));
    if (!self) {
        return;
    }
    if (const auto threshold = parseNumber(answer)) {
        StickerRhythm rhythm(design_, control<SurfaceView>(*this, "BigPic"), sticker_.BigPic);
        sticker_.removeColours(*threshold, rhythm);
    }
    unsetCursor();
}

void ClipartForm::exportSticker() {
    handOver(design_, sticker_.BigPic.Image(),
             QStringLiteral("Beweeg de sticker met de muis, rechts klikken is plaatsen."), true);
    accept();
}

} // namespace kaart
