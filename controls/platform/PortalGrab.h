#pragma once

#include "controls/platform/ScreenGrab.h"

#include <QDBusConnection>
#include <QTimer>

class QDBusMessage;

namespace kaart {

/// One picture of the screen from the desktop's portal (interface
/// org.freedesktop.portal.Screenshot), for sessions where no program sees the screen by itself. The
/// portal may ask the user first. Its file is read and deleted at once. All calls are asynchronous
/// and limited in time; a portal that is missing, refuses or stays silent is a refused().
class PortalGrab final : public ScreenGrab {
    Q_OBJECT

public:
    using Bus = QDBusConnection (*)();
    explicit PortalGrab(Bus bus = &QDBusConnection::sessionBus);

    bool isLive() const override { return false; }
    void start() override;
    void stop() override;
    QRect desktop() const override { return picture_.rect(); }
    /// The mouse is only known over the program's own windows; elsewhere its last place counts.
    QPoint mouse() const override;
    QImage grab(const QRect& pixels) const override;

    /// The end of a wish that got no answer in time.
    void giveUp();

private slots:
    void takeAnswer(const QDBusMessage& message);

private:
    void call(const QDBusConnection& bus);

    Bus bus_;
    QTimer limit_;
    QString wish_; ///< the token of the picture that is waited for, or empty
    int wishes_ = 0;
    QImage picture_;
};

} // namespace kaart
