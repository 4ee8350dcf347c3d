#include "controls/platform/Wallpaper.h"
#include "controls/platform/PlasmaWallpaper.h"
#include "controls/platform/PortalWallpaper.h"
#include "design/surface/PictureGate.h"
#include "tests/support/Answer.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>

using namespace kaart;

namespace {

/// A desktop on a bus of its own, on a thread of its own too, since its callers wait.
class Shell : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit Shell(QString outcome) : outcome_(std::move(outcome)) {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        daemon_.waitForReadyRead();
        address_ = daemon_.readLine().trimmed();
        moveToThread(&thread_);
        thread_.start();
        QMetaObject::invokeMethod(this, &Shell::serve, Qt::BlockingQueuedConnection);
        bus = QDBusConnection::connectToBus(address_, "caller");
    }
    ~Shell() override {
        QDBusConnection::disconnectFromBus("caller");
        QDBusConnection::disconnectFromBus("desktop");
        thread_.quit();
        thread_.wait();
        daemon_.kill();
        daemon_.waitForFinished();
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& line) override {
        asked = message.interface() + '.' + message.member();
        const QVariantList parts = message.arguments();
        if (outcome_ == "refused") {
            return false;
        }
        if (parts.size() == 1) {
            said = parts[0].toString();
            return line.send(message.createReply(QString()));
        }
        QFile file;
        file.open(parts[1].value<QDBusUnixFileDescriptor>().fileDescriptor(), QFile::ReadOnly);
        said = file.readAll();
        const QString handle = "/org/freedesktop/portal/desktop/request/1_1/" +
                               qdbus_cast<QVariantMap>(parts[2])["handle_token"].toString();
        line.send(message.createReply(QVariant::fromValue(QDBusObjectPath(handle))));
        QDBusMessage signal =
            QDBusMessage::createSignal(handle, "org.freedesktop.portal.Request", "Response");
        signal << (outcome_ == "no" ? 1U : 0U) << QVariantMap();
        return line.send(signal);
    }

    QDBusConnection bus{"none"};
    QString asked;
    QString said;

private:
    void serve() {
        QDBusConnection desktop = QDBusConnection::connectToBus(address_, "desktop");
        for (const char* name : {"org.kde.plasmashell", "org.freedesktop.portal.Desktop"}) {
            desktop.registerService(name);
        }
        desktop.registerVirtualObject("/PlasmaShell", this);
        desktop.registerVirtualObject("/org/freedesktop/portal/desktop", this);
    }

    QString outcome_;
    QString address_;
    QProcess daemon_;
    QThread thread_;
};

} // namespace

class WallpaperTest : public QObject {
    Q_OBJECT

    // What the desktop's command does when called, and how it is called.
    using Desktop = Rows<QByteArray, QString, QStringList>;

private slots:
    void initTestCase() {
        qputenv("XDG_DATA_HOME", folder_.filePath("it's a \"home\"").toUtf8());
        qputenv("PATH", folder_.path().toUtf8() + ":/usr/bin:/bin");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    }

    void ThePictureIsSavedAndGivenToTheDesktop_data() {
        const Desktop row;
        const QString set = "set|org.gnome.desktop.background|picture-uri";
        row("gnome", "ubuntu:GNOME", "", {set + "|URL", set + "-dark|URL"});
        row("refused", "GNOME", "exit 1", {set + "|URL"});
        row("mate", "MATE", "", {"set|org.mate.background|picture-filename|PATH"});
        row("unknown", "sway", "", {});
        const QString one = "-c|xfce4-desktop|-p|/one/last-image|-n|-t|string|-s|";
        const QString two = "-c|xfce4-desktop|-p|/two/last-image|-n|-t|string|-s|";
        row("xfce", "XFCE", "echo /one/last-image; echo /style; echo /two/last-image",
            {"-c|xfce4-desktop|-l", one, one + "PATH", two, two + "PATH"});
    }
    void ThePictureIsSavedAndGivenToTheDesktop() {
        auto [desktop, answer, calls] = Desktop::now();
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        fakeCommands(answer);
        const QString path =
            QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
            "/Wallpaper.bmp";
        QFile::remove(path);
        {
            Answer no;
            no.press(QMessageBox::No);
            BewaarBureaublad(nullptr, picture_);
            QVERIFY(no.seen().size() == 1 && !QFile::exists(path) && noted().isEmpty());
        }
        Answer yes;
        yes.press(QMessageBox::Yes).press(QMessageBox::Ok);
        BewaarBureaublad(nullptr, picture_);
        calls.replaceInStrings("URL", QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
        QCOMPARE(noted(), calls.replaceInStrings("PATH", path));
        const QString title = " Windows Wallpaper|";
        QStringList boxes{title + "Afbeelding opslaan als bureaublad foto? "};
        if (answer != "exit 1" && !calls.isEmpty()) {
            boxes << title + "Achtergrond bureaublad is gewijzigd...";
        }
        QCOMPARE(yes.seen(), boxes);
        comparePictures(LoadPicture(path).value_or(QImage()), picture_);
    }

    void PlasmaRunsAScriptWithTheFileAsALiteral() {
        Shell shell{QString()};
        QVERIFY(setPlasmaWallpaper("/tmp/a'\"\\);b.bmp", shell.bus));
        QCOMPARE(shell.asked, "org.kde.PlasmaShell.evaluateScript");
        QVERIFY2(shell.said.startsWith("var file = [\"file:///tmp/a'%22%5C);b.bmp\"][0];"),
                 qPrintable(shell.said));
        QVERIFY(!setPlasmaWallpaper("/tmp/a.bmp", QDBusConnection("none")));
    }

    void ThePortalGetsTheFileItself() {
        for (const QString outcome : {"yes", "no", "refused"}) {
            QFile file(folder_.filePath("a.bmp"));
            QVERIFY(file.open(QFile::WriteOnly) && file.write("bytes") == 5);
            file.close();
            Shell portal(outcome);
            QCOMPARE(setPortalWallpaper(file.fileName(), portal.bus), outcome == "yes");
            QCOMPARE(portal.asked, "org.freedesktop.portal.Wallpaper.SetWallpaperFile");
            QCOMPARE(portal.said, outcome == "refused" ? "" : "bytes");
            QVERIFY(!setPortalWallpaper("/nowhere.bmp", portal.bus));
        }
    }

private:
    /// Commands that note their arguments.
    void fakeCommands(const QString& answer) {
        QFile::remove(folder_.filePath("calls"));
        for (const char* name : {"gsettings", "xfconf-query"}) {
            QFile script(folder_.filePath(name));
            QVERIFY(script.open(QFile::WriteOnly));
            script.write("#!/bin/sh\nIFS='|'; echo \"$*\" >> '" +
                         folder_.filePath("calls").toUtf8() + "'\n" + answer.toUtf8());
            script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
    }
    QStringList noted() const {
        QFile file(folder_.filePath("calls"));
        return file.open(QFile::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                   : QStringList();
    }

    const QImage picture_ = pictureOf({"1234", "5678"});
    QTemporaryDir folder_;
};

KAART_TEST(WallpaperTest)
#include "WallpaperTest.moc"
