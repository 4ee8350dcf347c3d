#include "controls/platform/Wallpaper.h"

#include "controls/Messages.h"
#include "controls/platform/SettingsWallpaper.h"
#include "controls/platform/WindowsWallpaper.h"
#include "controls/platform/XfceWallpaper.h"
#include "design/surface/PictureGate.h"
#ifdef QT_DBUS_LIB
#include "controls/platform/PlasmaWallpaper.h"
#include "controls/platform/PortalWallpaper.h"
#endif

#include <QDir>
#include <QStandardPaths>

namespace kaart {

namespace {

#ifndef QT_DBUS_LIB
// Systems without the desktop's bus.
bool setPlasmaWallpaper(const QString&) {
    return false;
}
bool setPortalWallpaper(const QString&) {
    return false;
}
#endif

bool setInOwnWay(const QString& file) {
    const QString names = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    for (const QString& name : names.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        if (name.compare(QLatin1String("KDE"), Qt::CaseInsensitive) == 0) {
            return setPlasmaWallpaper(file);
        }
        if (name.compare(QLatin1String("XFCE"), Qt::CaseInsensitive) == 0) {
            return setXfceWallpaper(file);
        }
        if (setSettingsWallpaper(name, file)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool ZetBureaublad(const QString& file) {
    return setWindowsWallpaper(file) || setInOwnWay(file) || setPortalWallpaper(file);
}

void BewaarBureaublad(QWidget* parent, const QImage& picture) {
    const QString title = QStringLiteral(" Windows Wallpaper");
    if (!askYesNo(parent, title, QStringLiteral("Afbeelding opslaan als bureaublad foto? "))) {
        return;
    }
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    const QString file = folder.filePath(QStringLiteral("Wallpaper.bmp"));
    if (folder.mkpath(QStringLiteral(".")) && SavePicture(picture, file) && ZetBureaublad(file)) {
        showMessage(parent, title, QStringLiteral("Achtergrond bureaublad is gewijzigd..."));
    }
}

} // namespace kaart
