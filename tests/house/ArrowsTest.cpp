#include "tests/support/Test.h"

#include <QDir>
#include <QDirIterator>
#include <QLibraryInfo>
#include <QMap>
#include <QRegularExpression>

namespace {

/// Which rooms each room may know beside itself; the picture of docs/architecture.md as a table.
const QMap<QString, QStringList>& arrows() {
    static const QStringList lowest{"design/surface"};
    static const QStringList forTools{"design/session", "filters",       "generators", "output",
                                      "pictures",       "libraries",     "puzzle",     "addresses",
                                      "packs",          "design/surface"};
    static const QStringList forWindows = QStringList{"controls", "design/tools"} + forTools;
    static const QMap<QString, QStringList> table = [] {
        QMap<QString, QStringList> rooms;
        rooms["design/surface"] = {};
        rooms["controls"] = lowest;
        rooms["filters"] = lowest;
        for (const char* half :
             {"generators", "output", "pictures", "libraries", "puzzle", "addresses", "packs"}) {
            rooms[half] = lowest + QStringList{"filters"};
            QStringList window{half,      "controls",      "design/tools", "design/session",
                               "filters", "design/surface"};
            rooms[QLatin1String(half) + "/window"] = window;
        }
        rooms["design/session"] = forTools.mid(1);
        rooms["design/tools"] = forTools;
        rooms["design/window"] = {"controls", "design/tools", "design/session", "filters",
                                  "design/surface"};
        rooms["app"] = forWindows + QStringList{"design/window"};
        for (const char* half :
             {"generators", "output", "pictures", "libraries", "puzzle", "addresses", "packs"}) {
            rooms["app"] << QLatin1String(half) + "/window";
        }
        return rooms;
    }();
    return table;
}

bool mayKnowWidgets(const QString& room) {
    return room == "controls" || room == "app" || room.endsWith("/window");
}

QString roomOf(const QString& path) {
    QString folder = path.section('/', 0, -2);
    while (!folder.isEmpty() && !arrows().contains(folder)) {
        folder = folder.contains('/') ? folder.section('/', 0, -2) : QString();
    }
    return folder;
}

bool isWidgetHeader(const QString& header) {
    const QString base = QLibraryInfo::path(QLibraryInfo::HeadersPath);
    for (const char* module : {"QtWidgets", "QtPrintSupport", "QtSvgWidgets"}) {
        if (header.startsWith(QLatin1String(module)) ||
            QFile::exists(base + '/' + module + '/' + header)) {
            return true;
        }
    }
    return false;
}

/// Headers that only one kind of system has.
bool isSystemHeader(const QString& header) {
    static const QRegularExpression ones(
        R"(^(sys|linux|arpa|netinet|X11|xcb)/|^(unistd|fcntl|pwd|grp|dlfcn|poll|pthread|dirent|)"
        R"(termios|strings|windows|shlobj|io|direct)\.h$)");
    return header.contains(ones);
}

struct Include {
    QString name;
    bool own; ///< in quotes
};

QList<Include> includesOf(const QString& text) {
    static const QRegularExpression line(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])",
                                         QRegularExpression::MultilineOption);
    QList<Include> found;
    for (auto match = line.globalMatch(text); match.hasNext();) {
        const auto one = match.next();
        found << Include{one.captured(2), one.captured(1) == "\""};
    }
    return found;
}

/// What is wrong with a file's includes; empty when nothing is.
QStringList faultsOf(const QString& path, const QString& text) {
    QStringList faults;
    const QString room = roomOf(path);
    for (const Include& include : includesOf(text)) {
        const QString at = path + " includes " + include.name;
        if (!include.own) {
            if (!mayKnowWidgets(room) && isWidgetHeader(include.name)) {
                faults << at + ": only windows, controls and app know widgets";
            }
            if (!path.startsWith("controls/platform/") && isSystemHeader(include.name)) {
                faults << at + ": only controls/platform knows the system";
            }
            continue;
        }
        const QString target = roomOf(include.name);
        if (target.isEmpty() && !include.name.endsWith(".moc")) {
            faults << at + ": not a path from the root to a room";
        } else if (!target.isEmpty() && target != room && !arrows()[room].contains(target)) {
            faults << at + ": no arrow from " + room + " to " + target;
        }
    }
    return faults;
}

} // namespace

class ArrowsTest : public QObject {
    Q_OBJECT

private slots:
    void EveryIncludeFollowsAnArrow() {
        const QDir root(qEnvironmentVariable("KAART_SOURCE"));
        QStringList faults;
        int files = 0;
        for (const QString& top : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (QStringList{"tests", "bench", "build"}.contains(top)) {
                continue;
            }
            QDirIterator sources(root.filePath(top), {"*.h", "*.cpp"}, QDir::Files,
                                 QDirIterator::Subdirectories);
            while (sources.hasNext()) {
                QFile file(sources.next());
                const QString path = root.relativeFilePath(file.fileName());
                QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
                QVERIFY2(!roomOf(path).isEmpty(), qPrintable(path + " stands in no room"));
                faults << faultsOf(path, QString::fromUtf8(file.readAll()));
                ++files;
            }
        }
        QVERIFY(files > 50);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void WrongArrowsAreFound_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("allowed");
        const auto row = [](const char* path, const char* line, bool allowed) {
            QTest::addRow("%s %s", path, line) << QString(path) << QString(line) << allowed;
        };
        row("design/tools/A.cpp", "#include \"design/session/Design.h\"", true);
        row("design/session/A.h", "#include \"design/tools/Tool.h\"", false);
        row("output/A.cpp", "#include \"design/session/Design.h\"", false);
        row("output/window/A.cpp", "#include \"design/window/Main.h\"", false);
        row("controls/A.cpp", "  #  include \"design/session/Design.h\"", false);
        row("design/surface/A.cpp", "#include <QWidget>", false);
        row("design/surface/A.cpp", "#include <QtWidgets/QWidget>", false);
        row("design/surface/A.cpp", "#include <QImage>", true);
        row("puzzle/window/A.cpp", "#include <QWidget>", true);
        row("output/A.cpp", "#include \"OptimisePicture.h\"", false);
        row("output/A.cpp", "#include <unistd.h>", false);
        row("controls/A.cpp", "#include <sys/stat.h>", false);
        row("controls/platform/A.cpp", "#include <windows.h>", true);
        row("packs/A.cpp", "#include <zip.h>", true);
    }
    void WrongArrowsAreFound() {
        QFETCH(QString, path);
        QFETCH(QString, line);
        QFETCH(bool, allowed);
        QCOMPARE(faultsOf(path, line).isEmpty(), allowed);
    }
};

KAART_TEST(ArrowsTest)
#include "ArrowsTest.moc"
