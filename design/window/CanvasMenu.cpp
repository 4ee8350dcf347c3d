#include "design/window/CanvasMenu.h"

#include "controls/Clipboard.h"
#include "controls/Messages.h"
#include "design/session/Algemeen.h"
#include "design/tools/CanvasCommands.h"
#include "design/window/MenuTable.h"

#include <QScreen>

namespace kaart {

namespace {

const QString helpTitle = QStringLiteral("Help");
const QString softwarePage = QStringLiteral("https://nl.libreoffice.org/");
const QString picturesPage = QStringLiteral("https://commons.wikimedia.org/");

} // namespace

CanvasMenu::CanvasMenu(QMainWindow& window, Design& design, const Canvas& canvas)
    : QObject(&window), window_(window), design_(design), canvas_(canvas) {
    addCommands();
    addHelp();
}

void CanvasMenu::add(const QString& entry, const std::function<void()>& run) {
    enableEntry(window_, entry, [this, run] {
        if (!canvas_.dragging()) {
            run();
        }
    });
}

void CanvasMenu::addCommands() {
    for (const int index : edgeEntries) {
        add(fullName("ToolsRanden", index), [this, index] { ToolsRanden(design_, index); });
    }
    for (const int index : gradientEntries) {
        add(fullName("GradientRichting", index),
            [this, index] { GradientRichting(design_, index); });
    }
    add(QStringLiteral("EditClipboard"),
        [this] { NaarClipboard(&window_, design_.Pic().Image()); });
}

void CanvasMenu::addHelp() {
    addDocument(QStringLiteral("HelpHelp"), QStringLiteral("Help.pdf"));
    add(fullName("Helpscreen", 1), [this] { Helpscreen(); });
    addDocument(fullName("Helpscreen", 2), QStringLiteral("Beeldscherm.pdf"));
    add(QStringLiteral("HelpMeerSoftware"), [this] { openPage(softwarePage); });
    add(QStringLiteral("HelpMeerAfbeeldingen"), [this] { openPage(picturesPage); });
    add(QStringLiteral("HelpSpecialeTekens"), [this] { ToonTekens(); });
}

void CanvasMenu::addDocument(const QString& entry, const QString& fileName) {
    if (BestandBestaat(documentPath(fileName))) {
        add(entry, [this, fileName] { openDocument(fileName); });
    }
}

QString CanvasMenu::documentPath(const QString& fileName) const {
    return design_.Folders.in(QStringLiteral("Data/") + fileName);
}

void CanvasMenu::Helpscreen() {
    const QScreen& screen = *window_.screen();
    const double ratio = screen.devicePixelRatio();
    showColumns(&window_, QStringLiteral(" Scherminfo"),
                screenInfo(screen.logicalDotsPerInch() * ratio, screen.size() * ratio));
}

void CanvasMenu::ToonTekens() {
    showMessage(&window_, QStringLiteral("Mijn Kaartwerkje"), specialCharacters());
}

void CanvasMenu::openDocument(const QString& fileName) {
    const QString path = documentPath(fileName);
    if (!BestandBestaat(path) || !OpenDocument(path)) {
        showMessage(&window_, helpTitle,
                    QStringLiteral("%1 kan niet worden geopend.").arg(fileName));
    }
}

void CanvasMenu::openPage(const QString& address) {
    if (!OpenDocument(address)) {
        showMessage(&window_, helpTitle,
                    QStringLiteral("%1 kan niet worden geopend.").arg(address));
    }
}

} // namespace kaart
