#include "design/window/Main.h"
#include "app/Program.h"
#include "app/Windows.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kaart::prepareApplication(application);
    kaart::Design design(kaart::findProgramFolders());
    kaart::Main window(design, kaart::windowTable());
    window.show();
    return QApplication::exec();
}
