#include "controls/Printers.h"

#include "controls/Messages.h"
#include "controls/PaperPrinter.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <chrono>
#include <future>
#include <thread>

namespace kaart {

namespace {

struct SystemPrinters {
    QStringList names;
    QString standard;
};

QString& pickedPrinter() {
    static QString picked;
    return picked;
}

/// On a thread of its own, which is left to itself when the print service hangs.
SystemPrinters askSystem() {
    std::promise<SystemPrinters> promise;
    std::future<SystemPrinters> answer = promise.get_future();
    std::thread([promise = std::move(promise)]() mutable {
        const QStringList names = QPrinterInfo::availablePrinterNames();
        promise.set_value(
            {names, names.isEmpty() ? QString() : QPrinterInfo::defaultPrinterName()});
    }).detach();
    if (answer.wait_for(std::chrono::seconds(2)) != std::future_status::ready) {
        return {};
    }
    return answer.get();
}

QString askPdfPath(QWidget* parent, const QString& suggestion) {
    static const QRegularExpression refused(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]"));
    const QString name = QString(suggestion).replace(refused, QStringLiteral("_"));
    QFileDialog dialog(parent, QStringLiteral("Afdrukken naar PDF"),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(name + QStringLiteral(".pdf"));
    dialog.setOption(QFileDialog::DontUseNativeDialog,
                     QGuiApplication::platformName() == QLatin1String("offscreen"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

Printers findPrinters() {
    const SystemPrinters system = askSystem();
    Printers printers{system.names + QStringList(QStringLiteral("Opslaan als PDF"))};
    const auto last = printers.DeviceNames.size() - 1;
    const auto standard = printers.DeviceNames.indexOf(system.standard);
    const auto picked = printers.DeviceNames.indexOf(pickedPrinter());
    printers.current = static_cast<int>(picked >= 0 ? picked : standard >= 0 ? standard : last);
    return printers;
}

void pickPrinter(const QString& deviceName) {
    pickedPrinter() = deviceName;
}

std::unique_ptr<PrinterObject> openPrinter(QWidget* parent, const Printers& printers, int index,
                                           const QString& suggestion) {
    const QString name = printers.DeviceNames.value(index);
    if (!printers.isPdf(index)) {
        return PaperPrinter::forSystemPrinter(name);
    }
    const QString path = askPdfPath(parent, suggestion);
    return path.isEmpty() ? nullptr : PaperPrinter::forPdf(name, path);
}

void reportFailedPdf(QWidget* parent) {
    showMessage(parent, QStringLiteral("Afdrukken"),
                QStringLiteral("Het PDF-bestand kon niet worden geschreven."),
                QMessageBox::Critical);
}

} // namespace kaart
