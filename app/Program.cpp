#include "app/Program.h"

#include "controls/Palette.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kaart {

void prepareApplication(QApplication& application) {
    QApplication::setApplicationName(QStringLiteral("kaartwerkje"));
    QApplication::setApplicationDisplayName(QStringLiteral("Mijn Kaartwerkje"));
    applyHouseStyle();
    // The texts are Dutch whatever the desktop speaks, and so are the standard buttons.
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_nl"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
}

} // namespace kaart
