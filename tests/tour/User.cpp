#include "tests/tour/User.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QtTest>

User::User(QString folder) : folder_(std::move(folder)) {
    QDir().mkpath(folder_ + QStringLiteral("/vensters"));
}

QWidget* User::front() {
    if (QWidget* popUp = QApplication::activePopupWidget()) {
        return popUp;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) != nullptr) {
            return window;
        }
    }
    return nullptr;
}

void User::fail(const QString& what) const {
    if (!std::exchange(failed_, true)) {
        std::fprintf(stderr, "tour: %s\n", qPrintable(what));
    }
}

void User::wait(int ms) const {
    QTest::qWait(ms);
}

void User::photo(const QString& name) {
    wait(150);
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(folder_)
                             .arg(++photos_, 2, 10, QLatin1Char('0'))
                             .arg(name);
    QRect shown;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            shown |= window->frameGeometry();
        }
    }
    QScreen* screen = QGuiApplication::primaryScreen();
    const QImage picture = screen->grabWindow(0).toImage();
    const QRect alone = front()->window()->frameGeometry();
    const bool saved = picture.copy(shown & screen->geometry()).save(file) &&
                       picture.copy(alone & screen->geometry())
                           .save(QStringLiteral("%1/vensters/%2.png").arg(folder_, name));
    if (!saved) {
        fail(QStringLiteral("no picture ") + file);
    }
}

QWidget& User::find(const QString& name) const {
    QWidget* window = front();
    QWidget* found = window == nullptr ? nullptr : window->findChild<QWidget*>(name);
    if (found == nullptr || !found->isVisible()) {
        fail(name + QStringLiteral(" is not there"));
        static QWidget nothing;
        return nothing;
    }
    return *found;
}

void User::clickAt(QWidget& widget, QPoint at, Qt::MouseButton button) const {
    QTest::mouseMove(&widget, at);
    QTest::mouseClick(&widget, button, {}, at);
    wait(20);
}

void User::doubleClickAt(QWidget& widget, QPoint at) const {
    // A view takes a double click only for the row that was pressed before.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, at);
    wait(20);
}

void User::click(const QString& name, Qt::MouseButton button) const {
    QWidget& widget = find(name);
    if (!widget.isEnabled()) {
        fail(name + QStringLiteral(" is disabled"));
    }
    // Check boxes and option buttons react on their left part only.
    clickAt(widget, QPoint(std::min(10, widget.width() / 2), widget.height() / 2), button);
}

void User::drag(QWidget& widget, const QList<QPoint>& path) const {
    QTest::mousePress(&widget, Qt::LeftButton, {}, path.first());
    for (const QPoint& at : path) {
        const QPoint global = widget.mapToGlobal(at);
        QCursor::setPos(global);
        QMouseEvent move(QEvent::MouseMove, at, global, Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &move);
        wait(2);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, path.last());
    wait(20);
}

void User::carry(QWidget& widget, QPoint by) const {
    constexpr int steps = 10;
    const QPoint hold = widget.rect().center();
    QTest::mousePress(&widget, Qt::LeftButton, {}, hold);
    for (int i = 0; i < steps; ++i) {
        const QPoint at = hold + by * (i + 1) / steps - by * i / steps;
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &move);
        wait(2);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, hold);
    wait(20);
}

void User::fill(const QString& name, const QString& text) const {
    QWidget& field = find(name);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, text);
}

void User::type(const QString& text) const {
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void User::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QWidget* popUp = QApplication::activePopupWidget();
    if (popUp == nullptr) {
        // Without a window manager nobody else hands the keyboard on, and a list that has just
        // closed may hold it still.
        front()->activateWindow();
        if (!QTest::qWaitFor([] { return QApplication::activeWindow() == front(); }, 2000)) {
            fail(QStringLiteral("the window in front does not get the keyboard"));
        }
    }
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(popUp != nullptr ? popUp : focus != nullptr ? focus : front(), key, modifiers);
    wait(20);
}

void User::slide(const QString& name, int value) const {
    auto* slider = qobject_cast<QAbstractSlider*>(&find(name));
    if (slider == nullptr) {
        return;
    }
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Home);
    const Qt::Key more = slider->orientation() == Qt::Vertical ? Qt::Key_Down : Qt::Key_Right;
    for (int i = slider->minimum(); i < value && slider->value() < value; ++i) {
        QTest::keyClick(slider, more);
    }
    if (slider->value() != value) {
        fail(name + QStringLiteral(" does not follow its keys"));
    }
    wait(20);
}

void User::choose(const QString& name, const QString& text) const {
    auto* combo = qobject_cast<QComboBox*>(&find(name));
    const int row = combo == nullptr ? -1 : combo->findText(text);
    if (row < 0) {
        fail(name + QStringLiteral(" has no ") + text);
        return;
    }
    combo->setFocus();
    combo->showPopup();
    wait();
    combo->view()->setCurrentIndex(combo->model()->index(row, combo->modelColumn()));
    QTest::keyClick(combo->view(), Qt::Key_Return);
    wait();
}

void User::menu(const QString& menu, const QString& entry) {
    auto* window = qobject_cast<QMainWindow*>(front());
    auto* found = window == nullptr ? nullptr : window->findChild<QMenu*>(menu);
    if (found == nullptr) {
        fail(menu + QStringLiteral(" is not there"));
        return;
    }
    QMenuBar* bar = window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(found->menuAction()).center());
    wait();
    if (!menusSeen_.contains(menu)) {
        menusSeen_ << menu;
        photo(QStringLiteral("menu-") + menu.toLower());
    }
    chooseEntry(*found, entry);
}

void User::choosePopUp(const std::function<void()>& opens, const QString& entry,
                       const QString& picture) {
    bool done = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto* popUp = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (done || popUp == nullptr) {
            return;
        }
        done = true;
        look.stop();
        if (!picture.isEmpty()) {
            photo(picture);
        }
        chooseEntry(*popUp, entry);
    });
    look.start(20);
    opens();
    if (!done) {
        fail(QStringLiteral("no menu came up for ") + entry);
    }
}

void User::chooseEntry(QMenu& menu, const QString& entry) const {
    for (QAction* action : menu.actions()) {
        const bool inside = action->menu() != nullptr && action->menu()->findChild<QAction*>(entry);
        if (!inside && (action->objectName() != entry || !action->isEnabled())) {
            continue;
        }
        const QPoint at = menu.actionGeometry(action).center();
        QTest::mouseMove(&menu, at);
        QTest::mouseClick(&menu, Qt::LeftButton, {}, at);
        wait();
        if (inside) {
            chooseEntry(*action->menu(), entry);
        }
        return;
    }
    fail(entry + QStringLiteral(" can't be chosen"));
    menu.close();
}

void User::during(const std::function<void()>& opens, const std::function<void()>& inside) const {
    QWidget* before = front();
    bool done = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!done && front() != before && front()->isVisible() &&
            QApplication::activePopupWidget() == nullptr) {
            done = true;
            look.stop();
            wait();
            inside();
        }
    });
    look.start(20);
    opens();
    for (int i = 0; i < 50 && !done; ++i) {
        wait(20);
    }
    if (!done) {
        fail(QStringLiteral("no window came up"));
    }
}
