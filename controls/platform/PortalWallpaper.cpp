#include "controls/platform/PortalWallpaper.h"

#include "controls/platform/Portal.h"

#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

namespace kaart {

namespace {

/// Waits for the one answer that belongs to a wish.
class Outcome : public QObject {
    Q_OBJECT

public:
    Outcome(const QDBusConnection& bus, QString wish) : wish_(std::move(wish)) {
        listenToPortal(bus, this, SLOT(take(QDBusMessage)));
    }

    bool of(const QDBusPendingCall& call) {
        const QDBusPendingCallWatcher watcher(call);
        connect(&watcher, &QDBusPendingCallWatcher::finished, this, [this, &watcher] {
            if (watcher.isError()) {
                loop_.quit();
            }
        });
        QTimer::singleShot(portalAnswerLimit, &loop_, &QEventLoop::quit);
        loop_.exec(QEventLoop::ExcludeUserInputEvents);
        return done_;
    }

private slots:
    void take(const QDBusMessage& message) {
        if (tokenOf(message) == wish_) {
            done_ = isGranted(message);
            loop_.quit();
        }
    }

private:
    QString wish_;
    QEventLoop loop_;
    bool done_ = false;
};

} // namespace

bool setPortalWallpaper(const QString& file, const QDBusConnection& bus) {
    QFile picture(file);
    const bool passesFiles =
        bus.connectionCapabilities().testFlag(QDBusConnection::UnixFileDescriptorPassing);
    if (!bus.isConnected() || !passesFiles || !picture.open(QIODevice::ReadOnly)) {
        return false;
    }
    static int wishes = 0;
    const QString wish = QStringLiteral("bureaublad%1").arg(++wishes);
    QDBusMessage message = portalCall("Wallpaper", "SetWallpaperFile");
    message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(picture.handle()))
            << QVariantMap{{QStringLiteral("handle_token"), wish},
                           {QStringLiteral("show-preview"), false},
                           {QStringLiteral("set-on"), QStringLiteral("background")}};
    return Outcome(bus, wish).of(bus.asyncCall(message, portalCallLimit));
}

} // namespace kaart

#include "PortalWallpaper.moc"
