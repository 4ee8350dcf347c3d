#include "controls/platform/ScreenGrab.h"

#include "controls/platform/LiveGrab.h"
#ifdef QT_DBUS_LIB
#include "controls/platform/PortalGrab.h"
#endif

#include <QGuiApplication>

namespace kaart {

bool needsPortal(const QString& platform, const QString& session) {
    return platform.startsWith(QLatin1String("wayland")) ||
           (platform == QLatin1String("xcb") && session == QLatin1String("wayland"));
}

std::unique_ptr<ScreenGrab> makeScreenGrab() {
#ifdef QT_DBUS_LIB
    if (needsPortal(QGuiApplication::platformName(), qEnvironmentVariable("XDG_SESSION_TYPE"))) {
        return std::make_unique<PortalGrab>();
    }
#endif
    return std::make_unique<LiveGrab>();
}

} // namespace kaart
