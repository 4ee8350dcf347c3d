#include "controls/platform/PortalWallpaper.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

namespace kaart {

namespace {

constexpr int callLimit = 5000;    // ms
constexpr int answerLimit = 20000; // ms; the user may have to say yes first

/// Waits for the one answer that belongs to a wish.
class Outcome : public QObject {
    Q_OBJECT

public:
    Outcome(QDBusConnection bus, QString wish) : wish_(std::move(wish)) {
        // Any path: the answer may come before the call that names its path has returned.
        bus.connect(QString(), QString(), QStringLiteral("org.freedesktop.portal.Request"),
                    QStringLiteral("Response"), this, SLOT(take(QDBusMessage)));
    }

    bool of(const QDBusPendingCall& call) {
        const QDBusPendingCallWatcher watcher(call);
        connect(&watcher, &QDBusPendingCallWatcher::finished, this, [this, &watcher] {
            if (watcher.isError()) {
                loop_.quit();
            }
        });
        QTimer::singleShot(answerLimit, &loop_, &QEventLoop::quit);
        loop_.exec(QEventLoop::ExcludeUserInputEvents);
        return done_;
    }

private slots:
    void take(const QDBusMessage& message) {
        if (message.path().section(QLatin1Char('/'), -1) == wish_) {
            done_ = message.arguments().value(0).toUInt() == 0;
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
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Wallpaper"), QStringLiteral("SetWallpaperFile"));
    message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(picture.handle()))
            << QVariantMap{{QStringLiteral("handle_token"), wish},
                           {QStringLiteral("show-preview"), false},
                           {QStringLiteral("set-on"), QStringLiteral("background")}};
    return Outcome(bus, wish).of(bus.asyncCall(message, callLimit));
}

} // namespace kaart

#include "PortalWallpaper.moc"
