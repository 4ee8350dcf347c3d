#include "addresses/PrintAdressen.h"

#include "design/surface/PrinterObject.h"

namespace kaart {

namespace {

// Twips.
constexpr int left = 300;
constexpr int titleTop = 300;
constexpr int stampLeft = 13650;
constexpr int headingTop = 900;
constexpr int ruleTop = 1140;
constexpr int firstRow = 1380;
constexpr int firstRowFurtherOn = 1320;
constexpr int rowHeight = 240;
constexpr int lastRow = 10800;

constexpr int ruleLength = 268; // letters

struct Column {
    int x;
    const char* heading;
};
constexpr Column columns[addressFields] = {
    {300, "Naam"},      {2700, "Adres"},   {5100, "Postcode"}, {6300, "Plaatsnaam"},
    {8400, "Telefoon"}, {10050, "E-mail"}, {12500, "Land"},    {14100, "Opmerking"}};

void printAt(PrinterObject& printer, double x, double y, const QString& text) {
    printer.CurrentX = x;
    printer.CurrentY = y;
    printer.Print(text);
}

void printTitle(PrinterObject& printer, const QDateTime& now) {
    printer.FontName = QStringLiteral("Arial");
    printer.FontBold = true;
    printer.FontSize = 14;
    printer.ForeColor = RGB(0, 0, 90);
    printAt(printer, left, titleTop, QStringLiteral("Adressenlijst"));
    printer.ForeColor = RGB(90, 0, 0);
    printAt(printer, stampLeft, titleTop, now.toString(QStringLiteral("HH:mm:ss / dd-MM-yyyy")));
}

void printHeading(PrinterObject& printer) {
    printer.FontName = QStringLiteral("Arial");
    printer.FontBold = true;
    printer.FontSize = 9;
    printer.ForeColor = RGB(30, 0, 0);
    for (const Column& column : columns) {
        printAt(printer, column.x, headingTop, QString::fromLatin1(column.heading));
    }
    printAt(printer, left, ruleTop, QString(ruleLength, QLatin1Char('-')));
}

void printRow(PrinterObject& printer, double y, const QStringList& address) {
    printer.ForeColor = RGB(60, 60, 60);
    printer.FontBold = false;
    printer.FontSize = 9;
    for (int field = 0; field < addressFields; ++field) {
        printAt(printer, columns[field].x, y, address.value(field));
    }
}

} // namespace

bool PrintAdressen(PrinterObject& printer, const Addresses& addresses, const QDateTime& now) {
    if (addresses.isEmpty()) {
        return true;
    }
    printer.ScaleMode = ScaleUnit::Twips;
    printer.Orientation = 2;
    printTitle(printer, now);
    printHeading(printer);
    double PrintY = firstRow;
    for (const QStringList& address : addresses) {
        printRow(printer, PrintY, address);
        PrintY += rowHeight;
        if (PrintY > lastRow) {
            printer.NewPage();
            printHeading(printer);
            PrintY = firstRowFurtherOn;
        }
    }
    return printer.EndDoc();
}

} // namespace kaart
