#pragma once

#include <QApplication>

/// The one application of all benchmarks that need windows: on the surroundings' display where they
/// name one, otherwise offscreen.
inline QApplication& benchApplication() {
    static int count = 1;
    static char name[] = "kaart_bench";
    static char* arguments[] = {name, nullptr};
    if (!qEnvironmentVariableIsSet("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static QApplication application(count, arguments);
    return application;
}
