// start_probe main|empty: shows the main window, or an empty one of its size, and at the first
// paint prints the CPU time since the process began (microseconds) and the proportional memory
// (KiB). Platform and screen come from the surroundings.
#include "app/Program.h"
#include "app/Windows.h"
#include "design/window/Main.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <memory>

namespace {

long proportionalMemory() {
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:")) {
            return line.mid(4).simplified().split(' ').first().toLong();
        }
    }
    return 0;
}

/// Reports once the window has been painted for the first time.
class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool handled = QObject::eventFilter(watched, event);
        if (event->type() == QEvent::Paint && !seen_) {
            seen_ = true;
            QTimer::singleShot(0, qApp, [] {
                timespec used{};
                clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
                std::printf("%ld %ld\n", used.tv_sec * 1000000L + used.tv_nsec / 1000L,
                            proportionalMemory());
                QCoreApplication::quit();
            });
        }
        return handled;
    }

private:
    bool seen_ = false;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    kaart::Design design({folder.path(), folder.path()});
    std::unique_ptr<QWidget> window;
    if (argc == 2 && QByteArray(argv[1]) == "main") {
        kaart::prepareApplication(application);
        window = std::make_unique<kaart::Main>(design, kaart::windowTable());
    } else {
        window = std::make_unique<QWidget>();
        window->resize(1186, 744);
    }
    FirstPaint firstPaint;
    window->installEventFilter(&firstPaint);
    window->show();
    return QApplication::exec();
}
