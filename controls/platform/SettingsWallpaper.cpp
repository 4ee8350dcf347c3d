#include "controls/platform/SettingsWallpaper.h"

#include "controls/platform/Command.h"

#include <QUrl>

#include <algorithm>
#include <array>

namespace kaart {

namespace {

struct Store {
    const char* desktop;
    const char* schema;
    const char* key;
    const char* darkKey; ///< or empty
    bool byUrl;          ///< else by path
};

constexpr std::array stores = {
    Store{"GNOME", "org.gnome.desktop.background", "picture-uri", "picture-uri-dark", true},
    Store{"Unity", "org.gnome.desktop.background", "picture-uri", "picture-uri-dark", true},
    Store{"Budgie", "org.gnome.desktop.background", "picture-uri", "picture-uri-dark", true},
    Store{"Pantheon", "org.gnome.desktop.background", "picture-uri", "picture-uri-dark", true},
    Store{"X-Cinnamon", "org.cinnamon.desktop.background", "picture-uri", "", true},
    Store{"MATE", "org.mate.background", "picture-filename", "", false},
};

bool set(const char* schema, const char* key, const QString& value) {
    return runCommand(QStringLiteral("gsettings"),
                      {QStringLiteral("set"), QLatin1String(schema), QLatin1String(key), value})
        .has_value();
}

} // namespace

bool setSettingsWallpaper(const QString& desktop, const QString& file) {
    const auto* const store = std::find_if(stores.begin(), stores.end(), [&](const Store& each) {
        return desktop.compare(QLatin1String(each.desktop), Qt::CaseInsensitive) == 0;
    });
    if (store == stores.end()) {
        return false;
    }
    const QString value =
        store->byUrl ? QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded) : file;
    const bool done = set(store->schema, store->key, value);
    if (done && *store->darkKey != '\0') {
        set(store->schema, store->darkKey, value); // older desktops have none
    }
    return done;
}

} // namespace kaart
