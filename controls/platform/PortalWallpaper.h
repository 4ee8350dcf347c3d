#pragma once

#include <QDBusConnection>
#include <QString>

namespace kaart {

/// The desktop's portal (interface org.freedesktop.portal.Wallpaper), which may ask the user first.
/// Waits for the outcome, meanwhile the program's windows are painted but take no input. False when
/// there is no portal, the user says no, or nothing is heard for 5 seconds of the call or 20 of the
/// answer.
bool setPortalWallpaper(const QString& file,
                        const QDBusConnection& bus = QDBusConnection::sessionBus());

} // namespace kaart
