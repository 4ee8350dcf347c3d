#include "app/Program.h"

#include "controls/Palette.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kaart {

namespace {

/// From the same files as the desktop's icon; each is read when it is asked for.
QIcon programIcon() {
    QIcon sizes;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        sizes.addFile(QStringLiteral(":/program/%1.png").arg(size), QSize(size, size));
    }
    return sizes;
}

/// A portable copy brings its fonts along.
void addFontsBeside() {
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/fonts"));
    for (const QString& file : folder.entryList({QStringLiteral("*.ttf")}, QDir::Files)) {
        QFontDatabase::addApplicationFont(folder.filePath(file));
    }
}

} // namespace

void prepareApplication(QApplication& application) {
    QApplication::setApplicationName(QStringLiteral("kaartwerkje"));
    QApplication::setApplicationDisplayName(QStringLiteral("Mijn Kaartwerkje"));
    QGuiApplication::setDesktopFileName(QStringLiteral("nl.kaartwerkje.Kaartwerkje"));
    addFontsBeside();
    applyHouseStyle();
    QApplication::setWindowIcon(programIcon());
    // The texts are Dutch whatever the desktop speaks, and so are the standard buttons.
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_nl"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
}

} // namespace kaart
