#pragma once

#include "controls/ControlTable.h"
#include "controls/SurfaceView.h"
#include "controls/VistaButton.h"
#include "design/window/Main.h"
#include "tests/support/Drag.h"

#include <QtWidgets>

#include <functional>
#include <memory>

/// A program folder, a design and its main window on view. What is in the folder beforehand, the
/// window finds.
struct MainDesk {
    explicit MainDesk(kaart::WindowTable windows = {},
                      std::shared_ptr<QTemporaryDir> filled = std::make_shared<QTemporaryDir>())
        : folder(std::move(filled)), window(design, windows) {
        window.show();
    }
    /// A control or a menu entry by its name, such as "TekenKnop(6)".
    template <typename T>
    T& at(const char* name) {
        return kaart::control<T>(window, name);
    }
    QAction& entry(const char* name) { return at<QAction>(name); }
    kaart::SurfaceView& pic() { return at<kaart::SurfaceView>("Pic"); }
    QString text(const char* label) { return at<QLabel>(label).text(); }
    bool shown(const char* name) { return at<QWidget>(name).isVisible(); }
    void click(const char* button) {
        QTest::mouseClick(&at<kaart::VistaButton>(button), Qt::LeftButton);
    }
    /// Acts on the next pop-up as soon as it is open.
    void onPopUp(std::function<void(QMenu& menu)> act) {
        QTimer::singleShot(0, &window, [act = std::move(act)] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            act(*menu);
        });
    }
    /// Takes an entry of an open menu, by the keyboard.
    void pick(QMenu& menu, const char* name) {
        QVERIFY(entry(name).isEnabled());
        menu.setActiveAction(&entry(name));
        QTest::keyClick(&menu, Qt::Key_Return);
    }

    std::shared_ptr<QTemporaryDir> folder;
    kaart::Design design{{folder->path(), folder->path()}};
    kaart::Main window;
};
