#include "controls/platform/PlasmaWallpaper.h"

#include <QDBusMessage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

namespace kaart {

namespace {

constexpr int limit = 5000; // ms

QString script(const QString& file) {
    // As JSON, which is a literal of the script's language whatever the name holds.
    const QString url = QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
    const QByteArray literal = QJsonDocument(QJsonArray{url}).toJson(QJsonDocument::Compact);
    // Only a change is noticed, and the name of the file is the same as last time.
    return QStringLiteral("var file = %1[0];"
                          "desktops().forEach(function (desktop) {"
                          "desktop.wallpaperPlugin = 'org.kde.image';"
                          "desktop.currentConfigGroup = ['Wallpaper', 'org.kde.image', 'General'];"
                          "desktop.writeConfig('Image', '');"
                          "desktop.writeConfig('Image', file);"
                          "});")
        .arg(QString::fromUtf8(literal));
}

} // namespace

bool setPlasmaWallpaper(const QString& file, const QDBusConnection& bus) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.plasmashell"), QStringLiteral("/PlasmaShell"),
        QStringLiteral("org.kde.PlasmaShell"), QStringLiteral("evaluateScript"));
    message << script(file);
    return bus.isConnected() &&
           bus.call(message, QDBus::Block, limit).type() == QDBusMessage::ReplyMessage;
}

} // namespace kaart
