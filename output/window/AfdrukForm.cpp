#include "output/window/AfdrukForm.h"

#include "controls/Art.h"
#include "controls/ChoiceLists.h"
#include "controls/ControlTable.h"
#include "controls/Labels.h"
#include "controls/Palette.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/PrinterObject.h"
#include "output/A4Layout.h"
#include "output/CalendarLayout.h"
#include "output/FoldedCardLayout.h"
#include "output/OptimisePicture.h"
#include "output/PostcardsLayout.h"
#include "output/TypedNumber.h"

#include <QComboBox>
#include <QDate>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QRadioButton>

namespace kaart {

namespace {

constexpr int optionCount = 4;

/// By option.
const PageLayout layouts[optionCount] = {printA4, printFoldedCard, printPostcards, printCalendar};

constexpr const char* marginCombos[] = {"LMcombo", "TMcombo", "RMcombo", "BMcombo"};

// The preview stands in the middle of this square, in twips.
constexpr int previewLeft = 6345;
constexpr int previewTop = 420;
constexpr int previewSquare = 2535;
constexpr int frameWidth = 135; // both sides together

const ControlRow controls[] = {
    {ControlKind::Label, "", "Label1", 180, 120, 2760, 240, "Printer Keuze"},
    {ControlKind::Combo, "", "Combo2", 180, 390, 2760, 360},
    {ControlKind::Option, "", "Option1(0)", 180, 960, 2760, 300, "Print op A4 formaat"},
    {ControlKind::Option, "", "Option1(1)", 180, 1290, 2760, 300, "Print Vouwkaart"},
    {ControlKind::Option, "", "Option1(2)", 180, 1620, 2760, 300, "Print 4 Ansichtkaarten"},
    {ControlKind::Option, "", "Option1(3)", 180, 1950, 1860, 300, "Print Jaarkalender"},
    {ControlKind::EditCombo, "", "Combo3", 2040, 1920, 900, 360},
    {ControlKind::Check, "", "Check1", 180, 2430, 2760, 300, "Afdruk Optimaliseren"},
    {ControlKind::Label, "", "Label5", 180, 2850, 1740, 360, "Aantal afdrukken"},
    {ControlKind::EditCombo, "", "Combo1", 2040, 2850, 900, 360},
    {ControlKind::Label, "", "Label4", 4020, 120, 1080, 240, "Bovenkant"},
    {ControlKind::EditCombo, "", "TMcombo", 4140, 390, 840, 360},
    {ControlKind::Label, "", "Label3", 2970, 1230, 1020, 240, "Linkerkant"},
    {ControlKind::EditCombo, "", "LMcombo", 3060, 1485, 840, 360},
    {ControlKind::Label, "", "Image1", 3990, 870, 1140, 1590},
    {ControlKind::Label, "", "Label7", 5130, 1230, 1020, 240, "Rechterkant"},
    {ControlKind::EditCombo, "", "RMcombo", 5220, 1485, 840, 360},
    {ControlKind::EditCombo, "", "BMcombo", 4140, 2580, 840, 360},
    {ControlKind::Label, "", "Label6", 4020, 2970, 1080, 240, "Onderkant"},
    {ControlKind::Label, "", "Label8", previewLeft, 120, previewSquare, 240, "Voorbeeld"},
    {ControlKind::Value, "", "Label2", previewLeft, previewTop, 1785, 2535},
    {ControlKind::Surface, "", "Picture1", previewLeft, previewTop, 1650, 2400},
    {ControlKind::Surface, "", "dstPicture", 0, 0, 15, 15},
    {ControlKind::Label, "", "Image2", 0, 0, 1650, 2400},
    {ControlKind::Label, "", "Image3", 0, 0, 2400, 1650},
    {ControlKind::Label, "", "Label9", 180, 3570, 8640, 600,
     "Met de 4 keuze balkjes kun je resp. de boven, linker, rechter en onderafstand instellen "
     "vanaf de zijkant van het."
     "papier (A4) tot aan de zijkant van de afbeelding."},
    {ControlKind::Button, "", "PrintKnop", 5460, 4530, 1620, 510, "Afdrukken", "", "afdrukken",
     "Enter"},
    {ControlKind::Button, "", "CancelKnop", 7260, 4530, 1620, 510, "Annuleren", "", "annuleren",
     "Esc"},
};

void fillNumbers(QComboBox& combo, int first, int last, const QString& text) {
    combo.addItems(numberList(first, last));
    combo.setCurrentIndex(combo.findText(text));
    combo.setEditText(text);
}

/// Disabled controls stay readable as such on back colours of their own.
void dimWhenDisabled(QWidget& widget, ColorRef fore) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, toQColor(fore));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, toQColor(fore));
    widget.setPalette(palette);
}

/// Gives the window system a turn after each row.
class YieldingRhythm final : public RowRhythm {
public:
    void rowDone(int, int) override { DoEvents(); }
};

} // namespace

AfdrukForm::AfdrukForm(Design& design, QWidget* parent)
    : QDialog(parent), design_(design), printers_(findPrinters()) {
    setObjectName(QStringLiteral("AfdrukForm"));
    setFixedSize(pixels(9000), pixels(5280));
    setBackColor(*this, RGB(170, 230, 190));
    buildControls(*this, controls);
    colourControls();
    fillLists();
    fillMargins();
    showArt();
    connectControls();
    pickPrinter(printers_.current);
    pickOption();
}

void AfdrukForm::colourControls() {
    for (const char* name : {"Combo1", "Combo2", "Combo3"}) {
        setBackColor(control<QWidget>(*this, name), RGB(240, 210, 210));
    }
    for (const char* name : marginCombos) {
        auto& combo = control<QWidget>(*this, name);
        setBackColor(combo, RGB(0, 0, 40));
        setForeColor(combo, RGB(230, 230, 150));
        dimWhenDisabled(combo, RGB(110, 110, 110));
    }
    for (const char* name : {"Label3", "Label4", "Label6", "Label7", "Label8"}) {
        control<QLabel>(*this, name).setAlignment(Qt::AlignCenter);
    }
    control<QLabel>(*this, "Label9").setWordWrap(true);
}

void AfdrukForm::fillLists() {
    control<QComboBox>(*this, "Combo2").addItems(printers_.DeviceNames);
    control<QComboBox>(*this, "Combo2").setCurrentIndex(printers_.current);
    control<QRadioButton>(*this, "Option1", 0).setChecked(true);
    fillNumbers(control<QComboBox>(*this, "Combo1"), 1, 20, QStringLiteral("1"));
    fillNumbers(control<QComboBox>(*this, "Combo3"), 2015, 2020,
                QString::number(QDate::currentDate().year()));
    nameByLabels(*this, {{"Combo1", "Label5"},
                         {"Combo2", "Label1"},
                         {"LMcombo", "Label3"},
                         {"TMcombo", "Label4"},
                         {"RMcombo", "Label7"},
                         {"BMcombo", "Label6"}});
    auto& year = control<QWidget>(*this, "Combo3");
    year.setAccessibleName(QStringLiteral("Jaar"));
    year.setAccessibleDescription(year.accessibleName());
}

void AfdrukForm::fillMargins() {
    const double margins[] = {design_.MargeLinks, design_.MargeBoven, design_.MargeRechts,
                              static_cast<double>(design_.MargeOnder)};
    for (int side = 0; side < 4; ++side) {
        fillNumbers(control<QComboBox>(*this, marginCombos[side]), side < 2 ? -99 : 0, 99,
                    QString::number(margins[side]));
    }
}

void AfdrukForm::showArt() {
    kaart::showArt(control<QLabel>(*this, "Image1"), QStringLiteral("Blad"));
    // Parts of the preview, whose pixels are its own.
    const std::pair<const char*, QString> drawings[] = {
        {"Image2", QStringLiteral("Kalender-Staand")},
        {"Image3", QStringLiteral("Kalender-Liggend")}};
    for (const auto& [name, drawing] : drawings) {
        auto& image = control<QLabel>(*this, name);
        image.setPixmap(QPixmap::fromImage(renderArt(drawing, image.size())));
    }
    for (const char* name : {"Image2", "Image3", "dstPicture"}) {
        control<QWidget>(*this, name).hide();
    }
    control<SurfaceView>(*this, "dstPicture").show(dstPicture_);
    control<SurfaceView>(*this, "Picture1").show(preview_);
}

void AfdrukForm::connectControls() {
    for (int index = 0; index < optionCount; ++index) {
        connect(&control<QRadioButton>(*this, "Option1", index), &QRadioButton::clicked, this,
                &AfdrukForm::pickOption);
    }
    connect(&control<QComboBox>(*this, "Combo2"), &QComboBox::currentIndexChanged, this,
            &AfdrukForm::pickPrinter);
    connect(&control<QComboBox>(*this, "LMcombo"), &QComboBox::currentTextChanged, this,
            [this](const QString& text) { design_.MargeLinks = typedNumber(text); });
    connect(&control<VistaButton>(*this, "PrintKnop"), &VistaButton::clicked, this,
            &AfdrukForm::print);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &AfdrukForm::reject);
}

void AfdrukForm::reject() {
    closed_ = true;
    design_.ToonInfo();
    QDialog::reject();
}

void AfdrukForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        control<VistaButton>(*this, "PrintKnop").click();
        return;
    }
    QDialog::keyPressEvent(event);
}

PrintOption AfdrukForm::option() const {
    int index = optionCount - 1;
    while (index > 0 && !control<QRadioButton>(*this, "Option1", index).isChecked()) {
        --index;
    }
    return static_cast<PrintOption>(index);
}

void AfdrukForm::pickOption() {
    const PrintOption picked = option();
    for (const char* name : {"LMcombo", "TMcombo", "RMcombo", "BMcombo", "Label9", "Check1"}) {
        control<QWidget>(*this, name).setEnabled(picked == PrintOption::A4);
    }
    control<QWidget>(*this, "Combo3").setVisible(picked == PrintOption::YearCalendar);
    const int kind = previewKind(picked, design_.isLandscape());
    SizePreview(kind);
    const char* calendar = kind == 1 ? "Image2" : "Image3";
    drawPreview(preview_, picked, design_.isLandscape(), design_.Pic().Image(),
                control<QLabel>(*this, calendar).pixmap(Qt::ReturnByValue).toImage());
    control<QWidget>(*this, "Picture1").update();
}

void AfdrukForm::SizePreview(int kind) {
    kaart::SizePreview(preview_, kind);
    auto& view = control<SurfaceView>(*this, "Picture1");
    view.show(preview_);
    const int width = static_cast<int>(preview_.Width());
    const int height = static_cast<int>(preview_.Height());
    const int left = previewLeft + (previewSquare - frameWidth - width) / 2;
    const int top = previewTop + (previewSquare - frameWidth - height) / 2;
    place(control<QWidget>(*this, "Label2"), left, top, width + frameWidth, height + frameWidth);
    place(view, left + frameWidth / 2, top + frameWidth / 2);
}

void AfdrukForm::pickPrinter(int index) {
    const QString name = printers_.DeviceNames.value(index);
    kaart::pickPrinter(name);
    setWindowTitle(QStringLiteral("Afdrukken (%1)").arg(name));
}

void AfdrukForm::takeMargins() {
    const auto typed = [this](const char* name) {
        return typedNumber(control<QComboBox>(*this, name).currentText());
    };
    design_.MargeLinks = typed("LMcombo");
    design_.MargeBoven = typed("TMcombo");
    design_.MargeRechts = typed("RMcombo");
    design_.MargeOnder = roundEven(typed("BMcombo"));
}

PrintOrder AfdrukForm::order() const {
    return {design_.Pic().Image(),
            design_.isLandscape(),
            typedWholeNumber(control<QComboBox>(*this, "Combo1").currentText()),
            {design_.MargeLinks, design_.MargeBoven, design_.MargeRechts, design_.MargeOnder},
            typedWholeNumber(control<QComboBox>(*this, "Combo3").currentText())};
}

void AfdrukForm::print() {
    takeMargins();
    PrintOrder wanted = order();
    if (wanted.copies < 1) {
        accept();
        return;
    }
    const int index = control<QComboBox>(*this, "Combo2").currentIndex();
    const auto layout = layouts[static_cast<int>(option())];
    const bool smooth =
        option() == PrintOption::A4 && control<QAbstractButton>(*this, "Check1").isChecked();
    const QString name =
        design_.OntwerpNaam.isEmpty() ? QStringLiteral("Kaart") : design_.OntwerpNaam;
    const QPointer<AfdrukForm> self = this;
    const auto printer = openPrinter(this, printers_, index, name);
    if (!self || printer == nullptr || (smooth && !optimise(wanted.picture))) {
        return;
    }
    if (!layout(*printer, wanted) && printers_.isPdf(index)) {
        reportFailedPdf(this);
    }
    if (self) {
        accept();
    }
}

/// Puts the doubled picture in place of `picture`. False when the window was closed meanwhile.
bool AfdrukForm::optimise(QImage& picture) {
    const QPointer<AfdrukForm> self = this;
    setCursor(Qt::WaitCursor); // kept: it stays so until the window has gone
    control<QWidget>(*this, "PrintKnop").setEnabled(false);
    PixelSurface doubled(2 * picture.width(), 2 * picture.height());
    YieldingRhythm rhythm;
    OptimisePicture(spanOf(std::as_const(picture)), doubled.writePixels(), rhythm);
    if (!self || closed_) {
        return false;
    }
    dstPicture_ = doubled;
    picture = dstPicture_.Image();
    return true;
}

} // namespace kaart
