#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>

#include <memory>

namespace kaart {

/// Looks at the screen of the session. Places and sizes are pixels of the whole desktop, all its
/// screens together. Nothing here waits for an answer: what isn't there yet is an empty picture.
class ScreenGrab : public QObject {
    Q_OBJECT

public:
    /// Live: every grab shows the screen as it is now. Otherwise one frozen picture serves from one
    /// start() to the next.
    virtual bool isLive() const = 0;
    /// To be called before the first grab. A frozen picture comes later, with frozen(), or not at
    /// all, with refused(); never before start() has returned.
    virtual void start() = 0;
    /// Drops the picture, and the wish for one.
    virtual void stop() = 0;
    /// The whole desktop; empty while there is nothing to be seen.
    virtual QRect desktop() const = 0;
    /// Where the mouse is, in the same pixels.
    virtual QPoint mouse() const = 0;
    /// That part of the desktop in surface format, black outside the screens. Empty when there is
    /// nothing to be seen.
    virtual QImage grab(const QRect& pixels) const = 0;

signals:
    void frozen();
    void refused();
};

/// Whether only the desktop's portal can picture the screen, which is so on Wayland, for programs
/// on its X server too. `platform` is Qt's name of the window system, `session` the type that the
/// session has by its own word.
bool needsPortal(const QString& platform, const QString& session);

/// The way to look at the screen that the present session has.
std::unique_ptr<ScreenGrab> makeScreenGrab();

} // namespace kaart
