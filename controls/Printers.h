#pragma once

#include <QStringList>

#include <memory>

class QWidget;

namespace kaart {

class PrinterObject;

/// The printers to choose from: those of the system and, last, a PDF printer, which is always
/// there.
struct Printers {
    QStringList DeviceNames;
    int current = 0; ///< the one picked before, else the system's default, else the PDF printer

    bool isPdf(int index) const { return index == DeviceNames.size() - 1; }
};

/// Asks the system for its printers. A print service that doesn't answer within two seconds counts
/// as having none.
Printers findPrinters();

/// Makes a printer the current one for as long as the program runs.
void pickPrinter(const QString& deviceName);

/// The printer object of a choice. For the PDF printer the user is asked for the file, with
/// `suggestion` as its name, which may hold any letters; empty when the user cancels that.
std::unique_ptr<PrinterObject> openPrinter(QWidget* parent, const Printers& printers, int index,
                                           const QString& suggestion);

/// Tells the user that the PDF file of a print job did not come out.
void reportFailedPdf(QWidget* parent);

} // namespace kaart
