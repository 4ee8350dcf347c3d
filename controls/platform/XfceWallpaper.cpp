#include "controls/platform/XfceWallpaper.h"

#include "controls/platform/Command.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

namespace kaart {

namespace {

std::optional<QByteArray> query(const QStringList& arguments) {
    return runCommand(QStringLiteral("xfconf-query"),
                      QStringList{QStringLiteral("-c"), QStringLiteral("xfce4-desktop")} +
                          arguments);
}

QStringList listedBackgrounds(const QByteArray& list) {
    return QString::fromUtf8(list)
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
        .filter(QRegularExpression(QStringLiteral("/last-image$")));
}

bool set(const QString& property, const QString& value) {
    return query({QStringLiteral("-p"), property, QStringLiteral("-n"), QStringLiteral("-t"),
                  QStringLiteral("string"), QStringLiteral("-s"), value})
        .has_value();
}

} // namespace

bool setXfceWallpaper(const QString& file) {
    const std::optional<QByteArray> list = query({QStringLiteral("-l")});
    if (!list) {
        return false;
    }
    QStringList backgrounds = listedBackgrounds(*list);
    if (backgrounds.isEmpty()) {
        for (const QScreen* screen : QGuiApplication::screens()) {
            backgrounds << QStringLiteral("/backdrop/screen0/monitor%1/workspace0/last-image")
                               .arg(screen->name());
        }
    }
    bool any = false;
    for (const QString& background : backgrounds) {
        // Only a change is noticed, and the name of the file is the same as last time.
        set(background, QString());
        any = set(background, file) || any;
    }
    return any;
}

} // namespace kaart
