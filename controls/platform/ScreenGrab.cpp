#include "controls/platform/ScreenGrab.h"

#include "controls/platform/LiveGrab.h"
#include "controls/platform/PortalGrab.h"

#include <QGuiApplication>

namespace kaart {

bool needsPortal(const QString& platform, const QString& session) {
    return platform.startsWith(QLatin1String("wayland")) ||
           (platform == QLatin1String("xcb") && session == QLatin1String("wayland"));
}

std::unique_ptr<ScreenGrab> makeScreenGrab() {
    if (needsPortal(QGuiApplication::platformName(), qEnvironmentVariable("XDG_SESSION_TYPE"))) {
        return std::make_unique<PortalGrab>();
    }
    return std::make_unique<LiveGrab>();
}

} // namespace kaart
