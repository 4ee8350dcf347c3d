#include "controls/platform/PortalGrab.h"

#include "controls/platform/Portal.h"
#include "design/surface/PictureGate.h"
#include "design/surface/PixelSurface.h"

#include <QCursor>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QUrl>

namespace kaart {

namespace {

const QString tokenStart = QStringLiteral("kaartwerkje");

/// The local file of an answer; empty when it brings none.
QString pictureFile(const QDBusMessage& answer) {
    if (!isGranted(answer)) {
        return {};
    }
    const auto results = qdbus_cast<QVariantMap>(answer.arguments().at(1));
    return QUrl(results.value(QStringLiteral("uri")).toString()).toLocalFile();
}

} // namespace

PortalGrab::PortalGrab(Bus bus) : bus_(bus) {
    limit_.setSingleShot(true);
    connect(&limit_, &QTimer::timeout, this, &PortalGrab::giveUp);
}

void PortalGrab::start() {
    stop();
    wish_ = tokenStart + QString::number(++wishes_);
    limit_.start(portalAnswerLimit);
    const QDBusConnection bus = bus_();
    if (bus.isConnected()) {
        listenToPortal(bus, this, SLOT(takeAnswer(QDBusMessage)));
        call(bus);
    } else {
        QMetaObject::invokeMethod(this, &PortalGrab::giveUp, Qt::QueuedConnection);
    }
}

void PortalGrab::call(const QDBusConnection& bus) {
    QDBusMessage message = portalCall("Screenshot", "Screenshot");
    message << QString()
            << QVariantMap{{QStringLiteral("handle_token"), wish_},
                           {QStringLiteral("interactive"), false}};
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, portalCallLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, wish = wish_] {
        watcher->deleteLater();
        if (watcher->isError() && wish == wish_) {
            giveUp();
        }
    });
}

void PortalGrab::stop() {
    limit_.stop();
    wish_.clear();
    picture_ = QImage();
}

void PortalGrab::giveUp() {
    if (!wish_.isEmpty()) {
        stop();
        emit refused();
    }
}

void PortalGrab::takeAnswer(const QDBusMessage& message) {
    const QString token = tokenOf(message);
    if (!token.startsWith(tokenStart)) {
        return;
    }
    const QString file = pictureFile(message);
    if (token == wish_) {
        picture_ = LoadPicture(file).value_or(QImage());
    }
    // One that comes too late would be left among the user's pictures, so it goes as well.
    if (!file.isEmpty()) {
        QFile::remove(file);
    }
    if (token == wish_ && picture_.isNull()) {
        giveUp();
    } else if (token == wish_) {
        limit_.stop();
        wish_.clear();
        emit frozen();
    }
}

QPoint PortalGrab::mouse() const {
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    const QPoint at = QCursor::pos() - desktop.topLeft();
    if (picture_.isNull() || desktop.isEmpty()) {
        return at;
    }
    return {at.x() * picture_.width() / desktop.width(),
            at.y() * picture_.height() / desktop.height()};
}

QImage PortalGrab::grab(const QRect& pixels) const {
    if (picture_.isNull()) {
        return {};
    }
    PixelSurface seen(pixels.width(), pixels.height(), black);
    seen.PaintPicture(picture_, -pixels.x(), -pixels.y());
    return seen.Image();
}

} // namespace kaart
