#include "controls/platform/WindowsWallpaper.h"

#ifdef Q_OS_WIN
#include <QDir>

#include <windows.h>
#endif

namespace kaart {

#ifdef Q_OS_WIN
bool setWindowsWallpaper(const QString& file) {
    std::wstring path = QDir::toNativeSeparators(file).toStdWString();
    return SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, path.data(),
                                 SPIF_UPDATEINIFILE | SPIF_SENDCHANGE) != 0;
}
#else
bool setWindowsWallpaper(const QString&) {
    return false;
}
#endif

} // namespace kaart
