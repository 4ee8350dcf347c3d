#include "controls/platform/Portal.h"

namespace kaart {

QDBusMessage portalCall(const char* interface, const char* method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                          QStringLiteral("/org/freedesktop/portal/desktop"),
                                          QStringLiteral("org.freedesktop.portal.") +
                                              QLatin1String(interface),
                                          QString::fromLatin1(method));
}

void listenToPortal(QDBusConnection bus, QObject* receiver, const char* slot) {
    // Any path: the answer may come before the call that names its path has returned.
    bus.connect(QString(), QString(), QStringLiteral("org.freedesktop.portal.Request"),
                QStringLiteral("Response"), receiver, slot);
}

QString tokenOf(const QDBusMessage& answer) {
    return answer.path().section(QLatin1Char('/'), -1);
}

bool isGranted(const QDBusMessage& answer) {
    return answer.signature() == QLatin1String("ua{sv}") &&
           answer.arguments().value(0).toUInt() == 0;
}

} // namespace kaart
