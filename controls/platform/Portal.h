#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

namespace kaart {

// Wishes to the desktop's portal (org.freedesktop.portal.*). A wish bears a token of its own; the
// answer comes as a signal whose path ends in that token.

inline constexpr int portalCallLimit = 5000;    ///< ms
inline constexpr int portalAnswerLimit = 20000; ///< ms; the user may have to say yes first

/// A call of a portal's method, without arguments yet.
QDBusMessage portalCall(const char* interface, const char* method);
/// Has all answers delivered to a slot that takes a QDBusMessage.
void listenToPortal(QDBusConnection bus, QObject* receiver, const char* slot);
QString tokenOf(const QDBusMessage& answer);
/// Whether the wish was granted.
bool isGranted(const QDBusMessage& answer);

} // namespace kaart
