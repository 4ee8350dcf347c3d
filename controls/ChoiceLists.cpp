#include "controls/ChoiceLists.h"

#include <QFontDatabase>

#include <algorithm>

namespace kaart {

QStringList numberList(int first, int last, int step) {
    QStringList list;
    for (int i = first; i <= last; i += step) {
        list << QString::number(i);
    }
    return list;
}

QStringList fontList() {
    QStringList list = QFontDatabase::families();
    const QString arial = QStringLiteral("Arial");
    if (!list.contains(arial)) {
        list.insert(std::lower_bound(list.begin(), list.end(), arial), arial);
    }
    return list;
}

} // namespace kaart
