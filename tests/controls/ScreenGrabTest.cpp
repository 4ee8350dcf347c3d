#include "controls/platform/PortalGrab.h"
#include "tests/support/Pictures.h"
#include "tests/support/Test.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>

using namespace kaart;

namespace {

QDBusConnection peer() {
    return QDBusConnection("peer");
}

/// A desktop's portal at the other end of a private line.
class Portal : public QDBusVirtualObject {
    Q_OBJECT

public:
    Portal() {
        connect(&server_, &QDBusServer::newConnection, this, [this](QDBusConnection line) {
            lines_ << line;
            line.registerVirtualObject("/org/freedesktop/portal/desktop", this);
        });
        QDBusConnection::connectToPeer(server_.address(), "peer");
    }
    ~Portal() override { QDBusConnection::disconnectFromPeer("peer"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& line) override {
        const auto options = qdbus_cast<QVariantMap>(message.arguments().value(1));
        const QString token = options.value("handle_token").toString();
        tokens << message.interface() + '.' + message.member() + ' ' + token;
        if (absent) {
            return false;
        }
        const QString handle = "/org/freedesktop/portal/desktop/request/1_1/" + token;
        line.send(message.createReply(QVariant::fromValue(QDBusObjectPath(handle))));
        handles << handle;
        return true;
    }
    /// The outcome of the oldest request that is still open.
    void answer(uint outcome, const QString& file) {
        QDBusMessage signal = QDBusMessage::createSignal(
            handles.takeFirst(), "org.freedesktop.portal.Request", "Response");
        signal << outcome << QVariantMap{{"uri", QUrl::fromLocalFile(file).toString()}};
        lines_.last().send(signal);
    }

    bool absent = false;
    QStringList tokens;
    QStringList handles;

private:
    QDBusServer server_;
    QList<QDBusConnection> lines_;
};

const QStringList picture{"1234", "5678"};

} // namespace

class ScreenGrabTest : public QObject {
    Q_OBJECT

private slots:
    void OnlyWaylandNeedsThePortal() {
        QVERIFY(needsPortal("wayland-egl", "") && needsPortal("xcb", "wayland"));
        QVERIFY(!needsPortal("xcb", "x11") && !needsPortal("xcb", ""));
        QVERIFY(!needsPortal("offscreen", "wayland") && !needsPortal("windows", ""));
    }

    void ThePortalsPictureServesAndItsFileGoes() {
        Portal portal;
        PortalGrab grab(&peer);
        QSignalSpy frozen(&grab, &PortalGrab::frozen);
        grab.start();
        QVERIFY(grab.grab({0, 0, 2, 2}).isNull());
        QTRY_COMPARE(portal.tokens,
                     QStringList("org.freedesktop.portal.Screenshot.Screenshot kaartwerkje1"));
        portal.answer(0, shot());
        QTRY_COMPARE(frozen.size(), 1);
        QVERIFY(!QFile::exists(shot_));
        QCOMPARE(grab.desktop(), QRect(0, 0, 4, 2));
        comparePictures(grab.grab({1, -1, 4, 3}), pictureOf({"1111", "2341", "6781"}));
        grab.stop();
        QVERIFY(grab.grab({0, 0, 2, 2}).isNull());
    }

    void EveryWayOfNotAnsweringIsARefusal() {
        for (const QString way : {"no bus", "no portal", "user says no", "no picture", "silence"}) {
            Portal portal;
            portal.absent = way == "no portal";
            PortalGrab grab(way == "no bus" ? [] { return QDBusConnection("none"); } : &peer);
            QSignalSpy refused(&grab, &PortalGrab::refused);
            grab.start();
            QCOMPARE(refused.size(), 0); // never before start() has returned
            if (way == "silence") {
                grab.giveUp();
            } else if (way == "user says no" || way == "no picture") {
                QTRY_COMPARE(portal.handles.size(), 1);
                portal.answer(way == "no picture" ? 0 : 1, "/nowhere.png");
            }
            QTRY_COMPARE(refused.size(), 1);
            QVERIFY(grab.grab({0, 0, 2, 2}).isNull());
        }
    }

    void ALateAnswerIsDroppedWithItsFile() {
        Portal portal;
        PortalGrab grab(&peer);
        QSignalSpy frozen(&grab, &PortalGrab::frozen);
        grab.start();
        QTRY_COMPARE(portal.handles.size(), 1);
        grab.stop();
        grab.start();
        QTRY_COMPARE(portal.handles.size(), 2);
        portal.answer(0, shot());
        QTRY_VERIFY(!QFile::exists(shot_));
        QCOMPARE(frozen.size(), 0);
        portal.answer(0, shot());
        QTRY_COMPARE(frozen.size(), 1);
    }

private:
    /// Puts a screenshot where a portal would.
    QString shot() {
        shot_ = folder_.filePath("shot.png");
        pictureOf(picture).save(shot_);
        return shot_;
    }

    QTemporaryDir folder_;
    QString shot_;
};

KAART_TEST(ScreenGrabTest)
#include "ScreenGrabTest.moc"
