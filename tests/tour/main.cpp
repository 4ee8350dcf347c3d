// tour <folder>: plays the program from an empty card to a printed sheet and leaves pictures and
// PDF files in the folder.
#include "tests/tour/Chapters.h"

#include "app/Program.h"
#include "app/Windows.h"
#include "design/window/Main.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <cstdio>

namespace {

bool play(std::span<const Chapter> chapters, User& user, kaart::Design& design) {
    for (const Chapter& chapter : chapters) {
        std::printf("tour: %s\n", chapter.name);
        std::fflush(stdout);
        chapter.play(user, design);
        if (user.failed()) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tour <folder>\n");
        return 2;
    }
    kaart::prepareApplication(application);
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const kaart::ProgramFolders work{folder + QStringLiteral("/werk"),
                                     folder + QStringLiteral("/werk/Afbeeldingen")};
    QDir().mkpath(work.pictures);
    // The libraries alone, not the designs that were saved beside them.
    kaart::seedFolders(QCoreApplication::applicationDirPath(), work.program);
    QDir(work.in(QStringLiteral("Ontwerpen"))).removeRecursively();

    kaart::Design design(work);
    kaart::Main window(design, kaart::windowTable());
    window.show();
    User user(folder);
    user.wait(300);
    for (const auto part : {cardChapters(), filterChapters(), paperChapters(), artChapters(),
                            finishedCards(), puzzleChapters(), pictureChapters(), lastChapters()}) {
        if (!play(part, user, design)) {
            return 1;
        }
    }
    return 0;
}
