#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include <QFile>

#include <array>

using namespace kaart;

namespace {

void printMoreSheets(User& user, Design& design) {
    print(user, design, 2, QStringLiteral("Ansichtkaarten-staand.pdf"));
    print(user, design, 3, QStringLiteral("Jaarkalender-staand.pdf"));
}

void keepAddresses(User& user, Design& design) {
    const QString file = design.Folders.in(QStringLiteral("Data/Adressen.col"));
    const std::array<QStringList, 2> people = {
        QStringList{QStringLiteral("Anneke de Vries"), QStringLiteral("Kerkstraat 12"),
                    QStringLiteral("1234 AB"), QStringLiteral("Alkmaar"),
                    QStringLiteral("072-1234567"), QStringLiteral("anneke@voorbeeld.nl"),
                    QStringLiteral("Nederland"), QStringLiteral("jarig op 12 april")},
        QStringList{QStringLiteral("Lotte Bakker"), QStringLiteral("Dorpsplein 3"),
                    QStringLiteral("9876 ZX"), QStringLiteral("Zuidhorn")}};
    const auto add = [&](const QStringList& fields) {
        for (int field = 0; field < fields.size(); ++field) {
            user.fill(QStringLiteral("Text1(%1)").arg(field), fields[field]);
        }
        user.click(QStringLiteral("Knop(0)"));
    };
    const QString path = tourFile(design, QStringLiteral("Adressen.pdf"));
    user.during(
        [&] { user.menu(QStringLiteral("Gereedschap"), QStringLiteral("GereedschapAdressen")); },
        [&] {
            user.during([&] { user.click(QStringLiteral("Knop(0)")); },
                        [&] { user.press(Qt::Key_Return); });
            add(people[0]);
            add(people[1]);
            user.find(QStringLiteral("HScroll1")).setFocus();
            user.press(Qt::Key_End);
            user.press(Qt::Key_Home);
            user.photo(QStringLiteral("adressen"));
            user.during([&] { user.click(QStringLiteral("Knop(3)")); },
                        [&] { pickFile(user, path); });
            user.click(QStringLiteral("SaveKnop"));
        });
    QFile list(file);
    if (!list.open(QIODevice::ReadOnly) || !list.readAll().contains("Lotte Bakker\r\n")) {
        user.fail(QStringLiteral("the address list was not saved"));
    }
    if (!QFile::exists(path)) {
        user.fail(QStringLiteral("the addresses were not printed"));
    }
}

constexpr std::array table = {
    Chapter{"postcards and a calendar", printMoreSheets},
    Chapter{"addresses", keepAddresses},
};

} // namespace

std::span<const Chapter> paperChapters() {
    return table;
}
