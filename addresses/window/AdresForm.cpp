#include "addresses/window/AdresForm.h"

#include "addresses/PrintAdressen.h"
#include "controls/Art.h"
#include "controls/ControlTable.h"
#include "controls/Labels.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/Printers.h"
#include "controls/RecordModel.h"
#include "controls/VistaButton.h"
#include "design/session/Algemeen.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "design/surface/PrinterObject.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTreeView>

namespace kaart {

namespace {

constexpr ColorRef fieldColor = RGB(40, 0, 0);

const ControlRow controls[] = {
    {ControlKind::Text, "", "Text1(0)", 150, 180, 4500, 360},
    {ControlKind::Text, "", "Text1(1)", 150, 600, 4500, 360},
    {ControlKind::Text, "", "Text1(2)", 150, 1035, 1350, 360},
    {ControlKind::Text, "", "Text1(3)", 1590, 1035, 3060, 360},
    {ControlKind::Text, "", "Text1(4)", 150, 1470, 4500, 360},
    {ControlKind::Text, "", "Text1(5)", 150, 1905, 4500, 360},
    {ControlKind::Text, "", "Text1(6)", 150, 2340, 4500, 360},
    {ControlKind::Text, "", "Text1(7)", 150, 2785, 4500, 360},
    {ControlKind::Label, "", "Label1", 4740, 240, 3240, 240, "Voor en Achternaam"},
    {ControlKind::Label, "", "Label2", 4740, 660, 3240, 240, "Straatnaam en Huisnummer"},
    {ControlKind::Label, "", "Label3", 4740, 1095, 3240, 240, "Postcode en Woonplaats"},
    {ControlKind::Label, "", "Label4", 4740, 1530, 1410, 240, "Telefoonnummer"},
    {ControlKind::Label, "", "Label5", 4740, 1965, 1320, 240, "E-mail Adres"},
    {ControlKind::Label, "", "Label6", 4740, 2400, 1320, 240, "Land"},
    {ControlKind::Label, "", "Label9", 4740, 2845, 1320, 240, "Opmerkingen"},
    {ControlKind::Value, "", "Label8", 150, 3240, 4500, 330},
    {ControlKind::Scroll, "", "HScroll1", 180, 3270, 4440, 270},
    {ControlKind::Label, "", "Label7", 4740, 3300, 1320, 240, "0 / 0"},
    {ControlKind::Label, "", "Image1", 6090, 1770, 1740, 1800},
    {ControlKind::Button, "", "Knop(0)", 150, 3810, 1080, 360, "Toevoegen",
     " Bovenstaande adres toevoegen "},
    {ControlKind::Button, "", "Knop(1)", 1290, 3810, 1080, 360, "Wijzigen",
     " Bovenstaande adres wijzigen "},
    {ControlKind::Button, "", "Knop(2)", 2430, 3810, 1080, 360, "Verwijderen",
     " Bovenstaande adres verwijderen "},
    {ControlKind::Button, "", "Knop(3)", 3570, 3810, 1050, 360, "Afdrukken",
     " Alle adressen afdrukken "},
    {ControlKind::Button, "", "SaveKnop", 6870, 3810, 960, 360, "", " Opslaan en afsluiten ",
     "opslaan"},
    {ControlKind::Button, "", "CancelKnop", 5870, 3810, 960, 360, "", " Annuleren ", "annuleren",
     "Esc"},
    {ControlKind::ListView, "", "ListView1", 0, 0, 15, 15},
};

} // namespace

AdresForm::AdresForm(Design& design, QWidget* parent)
    : QDialog(parent),
      path_(design.Folders.in(QStringLiteral("Data/Adressen.col"))),
      store_(*new RecordModel(addresses_, addressHeaders(), this)) {
    setObjectName(QStringLiteral("AdresForm"));
    setWindowTitle(QStringLiteral("Adressenlijst"));
    setFixedSize(pixels(8100), pixels(4800));
    setBackColor(*this, windowColor);
    buildControls(*this, controls);
    colourControls();
    nameControls();
    showArt(control<QLabel>(*this, "Image1"), QStringLiteral("Adresboek"));
    auto& list = control<QTreeView>(*this, "ListView1");
    list.setModel(&store_);
    list.hide();
    LoadVerzameling();
    setScrollRange();
    connectControls();
}

void AdresForm::colourControls() {
    for (int field = 0; field < addressFields; ++field) {
        auto& input = control<QLineEdit>(*this, "Text1", field);
        setForeColor(input, fieldColor);
        setBackColor(input, RGB(220, 220, 220));
    }
}

void AdresForm::nameControls() {
    nameByLabels(*this, {{"Text1(0)", "Label1"},
                         {"Text1(1)", "Label2"},
                         {"Text1(4)", "Label4"},
                         {"Text1(5)", "Label5"},
                         {"Text1(6)", "Label6"},
                         {"Text1(7)", "Label9"}});
    for (const int field : {2, 3}) { // share a label
        control<QLineEdit>(*this, "Text1", field).setAccessibleName(addressHeaders()[field]);
    }
    control<QWidget>(*this, "HScroll1").setAccessibleName(QStringLiteral("Adres"));
}

void AdresForm::connectControls() {
    connect(&control<QScrollBar>(*this, "HScroll1"), &QScrollBar::valueChanged, this,
            &AdresForm::ShowAddress);
    void (AdresForm::*const commands[])() = {&AdresForm::add, &AdresForm::change,
                                             &AdresForm::remove, &AdresForm::print};
    for (int index = 0; index < 4; ++index) {
        connect(&control<VistaButton>(*this, "Knop", index), &VistaButton::clicked, this,
                commands[index]);
    }
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &AdresForm::reject);
    connect(&control<VistaButton>(*this, "SaveKnop"), &VistaButton::clicked, this, [this] {
        SaveVerzameling();
        accept();
    });
}

void AdresForm::LoadVerzameling() {
    store_.change([this] { addresses_ = readAddresses(path_); });
    showPosition(1);
    showFields(addresses_.value(0));
}

void AdresForm::SaveVerzameling() {
    writeAddresses(path_, addresses_);
}

void AdresForm::ShowAddress(int number) {
    if (addresses_.isEmpty()) {
        showPosition(0);
        showFields({});
    } else {
        showPosition(number);
        showFields(addresses_[Current - 1]);
    }
}

/// The address on view is never one that isn't there: a scroll bar lags behind its list.
void AdresForm::showPosition(int number) {
    const int count = static_cast<int>(addresses_.size());
    Current = qBound(1, number, qMax(1, count));
    control<QLabel>(*this, "Label7").setText(QStringLiteral("%1 / %2").arg(number).arg(count));
}

void AdresForm::showFields(const QStringList& address) {
    for (int field = 0; field < addressFields; ++field) {
        control<QLineEdit>(*this, "Text1", field).setText(address.value(field));
    }
}

QStringList AdresForm::typedFields() const {
    QStringList address;
    for (int field = 0; field < addressFields; ++field) {
        address << control<QLineEdit>(*this, "Text1", field).text();
    }
    return address;
}

void AdresForm::setScrollRange() {
    control<QScrollBar>(*this, "HScroll1")
        .setRange(1, qMax(1, static_cast<int>(addresses_.size())));
}

/// The fields as they go into the list; nothing, after a message, when a required one is blank.
std::optional<QStringList> AdresForm::takeFields(int required) {
    const QStringList typed = typedFields();
    if (const auto missing = missingField(typed, required)) {
        const QPointer<AdresForm> self = this;
        showMessage(this, QString(), missing->message);
        if (self) {
            control<QLineEdit>(*this, "Text1", missing->field).setFocus();
        }
        return std::nullopt;
    }
    return withDashes(typed, required);
}

void AdresForm::add() {
    const auto address = takeFields(requiredForAdding);
    if (!address) {
        return;
    }
    store_.change([&] { addresses_ << *address; });
    showFields({});
    showPosition(static_cast<int>(addresses_.size()));
    setScrollRange();
}

void AdresForm::change() {
    if (addresses_.isEmpty()) {
        return;
    }
    if (const auto address = takeFields(requiredForChanging)) {
        store_.change([&] { addresses_[Current - 1] = *address; });
        showFields(*address);
        flash(RGB(0, 255, 0));
    }
}

void AdresForm::remove() {
    if (addresses_.isEmpty()) {
        return;
    }
    const QPointer<AdresForm> self = this;
    const int index = Current - 1;
    const bool sure = askYesNo(this, QStringLiteral(" Delete"),
                               QStringLiteral("Wilt je (") + addresses_[index][0] +
                                   QStringLiteral(") verwijderen uit de lijst?"));
    if (!self || !sure) {
        return;
    }
    store_.change([&] { addresses_.removeAt(index); });
    ShowAddress(1);
    control<QScrollBar>(*this, "HScroll1").setValue(1);
    setScrollRange();
    flash(RGB(255, 0, 0));
}

void AdresForm::print() {
    if (addresses_.isEmpty()) {
        return;
    }
    const QPointer<AdresForm> self = this;
    const Printers printers = findPrinters();
    const auto printer = openPrinter(this, printers, printers.current, windowTitle());
    if (self && printer != nullptr &&
        !PrintAdressen(*printer, addresses_, QDateTime::currentDateTime()) &&
        printers.isPdf(printers.current)) {
        reportFailedPdf(this);
    }
}

/// Colours one field after another. The user may close the window meanwhile.
void AdresForm::flash(ColorRef colour) {
    const QPointer<AdresForm> self = this;
    for (int field = 0; field < addressFields && self && isVisible(); ++field) {
        setForeColor(control<QWidget>(*this, "Text1", field), colour);
        Wacht(flashPause);
        if (self) {
            setForeColor(control<QWidget>(*this, "Text1", field), fieldColor);
        }
    }
}

} // namespace kaart
