#pragma once

#include <QPoint>
#include <QStringList>
#include <QWidget>

#include <functional>

class QMenu;

/// A person at the screen: works the program's real windows with mouse and keys and takes pictures
/// of the screen. Whatever is not there when it is looked for ends the tour with a message.
class User {
public:
    explicit User(QString folder);

    /// Lets the program run, ms.
    void wait(int ms = 60) const;
    /// Saves the program's windows as the next numbered picture of the tour, and the one in front
    /// alone as vensters/<name>.png.
    void photo(const QString& name);

    // Mouse and keys, on the control of that name in the window in front.
    QWidget& find(const QString& name) const;
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) const;
    void clickAt(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) const;
    void doubleClickAt(QWidget& widget, QPoint at) const;
    void drag(QWidget& widget, const QList<QPoint>& path) const;
    /// Drags a widget that follows the mouse.
    void carry(QWidget& widget, QPoint by) const;
    void type(const QString& text) const;
    /// Puts a text in the place of what a field holds.
    void fill(const QString& name, const QString& text) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    /// Sets a slider with the mouse and the keys.
    void slide(const QString& name, int value) const;
    /// Chooses an entry of a drop-down list.
    void choose(const QString& name, const QString& text) const;
    /// Opens a menu of the bar, of which the first time a picture is taken, and chooses an entry.
    void menu(const QString& menu, const QString& entry);

    /// Does something that opens a window or pop-up, and acts in it while it is in front.
    void during(const std::function<void()>& opens, const std::function<void()>& inside) const;

    /// Does something that opens a pop-up menu and chooses an entry of it by its name, after a
    /// picture where one is named.
    void choosePopUp(const std::function<void()>& opens, const QString& entry,
                     const QString& picture = {});

    bool failed() const { return failed_; }
    void fail(const QString& what) const;

private:
    static QWidget* front();
    void chooseEntry(QMenu& menu, const QString& entry) const;

    QString folder_;
    int photos_ = 0;
    QStringList menusSeen_;
    mutable bool failed_ = false;
};
