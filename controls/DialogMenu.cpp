#include "controls/DialogMenu.h"

#include "controls/Mnemonics.h"
#include "design/surface/Numbers.h"

#include <QAction>
#include <QDialog>
#include <QMenuBar>

namespace kaart {

QMenuBar& addMenuBar(QDialog& window) {
    auto* bar = new QMenuBar(&window);
    bar->setGeometry(0, 0, window.width(), pixels(menuBarHeight));
    return *bar;
}

QAction& addEntry(QWidget& menu, const char* name, const QString& caption,
                  const std::function<void()>& run) {
    auto* entry = new QAction(caption, &menu);
    entry->setObjectName(QString::fromUtf8(name));
    menu.addAction(entry);
    QObject::connect(entry, &QAction::triggered, &menu, run);
    giveMnemonics(*menu.window());
    return *entry;
}

} // namespace kaart
