#include "tests/tour/Chapters.h"
#include "tests/tour/Steps.h"

#include "design/surface/PictureGate.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenuBar>

#include <array>

using namespace kaart;

namespace {

/// Takes the window's choice, after a picture of it.
void take(User& user, const char* picture, const char* button = "ExportKnop") {
    user.photo(QString::fromUtf8(picture));
    user.click(QString::fromUtf8(button));
}

void checkCard(User& user, const Design& design, const QString& file) {
    const auto picture = LoadPicture(file);
    if (!picture || design.Pic().Image() != picture->convertToFormat(QImage::Format_RGB32)) {
        user.fail(QStringLiteral("the card is not ") + file);
    }
}

void takePictures(User& user, Design& design) {
    const QString own = QStringLiteral("Drie ballonnen.jpg");
    inWindow(user, "Tools", "ToolsFoto", [&] {
        pickRow(user, own);
        take(user, "eigen-afbeelding", "OkKnop");
    });
    checkCard(user, design, design.Folders.pictures + QLatin1Char('/') + own);

    const QString file = QStringLiteral("Template-001.jpg");
    inWindow(user, "Tools", "ToolsBorders(2)", [&] {
        pickRow(user, file);
        take(user, "template");
    });
    checkCard(user, design, design.Folders.in(QStringLiteral("Templates/") + file));
}

void stickThings(User& user, Design& design) {
    user.during([&] { user.click(QStringLiteral("TekenKnop(10)")); },
                [&] {
                    user.clickAt(user.find(QStringLiteral("Pic")), {50, 50});
                    take(user, "pijlen");
                });
    putDown(user, design, {10, 530}, 5);
    inWindow(user, "Tools", "ToolsCliparts", [&] {
        user.clickAt(user.find(QStringLiteral("Pic")), {165, 60});
        take(user, "stickers");
    });
    putDown(user, design, {320, 505}, 5);
    inWindow(user, "Tools", "ToolsZwartWit", [&] {
        user.drag(user.find(QStringLiteral("Pic")), {{10, 10}, {100, 100}, {230, 220}});
        take(user, "vector-plaatjes");
    });
    putDown(user, design, {105, 420}, 4);
    user.photo(QStringLiteral("beplakt"));
}

void maskCard(User& user, Design& design) {
    const ColorRef middle = design.Pic().Point(220, 320);
    inWindow(user, "Tools", "ToolsBorders(4)", [&] {
        pickRow(user, QStringLiteral("Masker-001.jpg"));
        take(user, "masker");
    });
    user.photo(QStringLiteral("gemaskeerd"));
    if (design.Pic().Point(0, 0) != white || design.Pic().Point(220, 320) != middle) {
        user.fail(QStringLiteral("the mask does not cover the corners only"));
    }
}

/// An entry that stands in the bar itself of the window in front.
void clickBar(User& user, const char* entry) {
    auto* bar = QApplication::activeModalWidget()->findChild<QMenuBar*>();
    auto* action = bar->findChild<QAction*>(QString::fromUtf8(entry));
    user.clickAt(*bar, bar->actionGeometry(action).center());
}

void captureScreen(User& user, Design& design) {
    const QPixmap shown(design.Folders.in(QStringLiteral("Frames/Frame-001.jpg")));
    QLabel other; // another program's window
    other.setPixmap(shown);
    other.setFixedSize(shown.size()); // a new window takes but a part of a low screen
    other.move(0, 0);
    inWindow(user, "Gereedschap", "GereedschapCapture", [&] {
        user.photo(QStringLiteral("schermafdruk-begin"));
        other.show();
        user.wait();
        clickBar(user, "Afdruk");
        user.drag(user.find(QStringLiteral("Pic")), {{5, 5}, {100, 100}, {184, 144}});
        user.photo(QStringLiteral("schermafdruk"));
        clickBar(user, "Export");
    });
    const QImage seen = shown.toImage().convertToFormat(QImage::Format_RGB32);
    if (!design.ClipPic.Visible || design.ClipPic.Image() != seen.copy(5, 5, 180, 140)) {
        user.fail(QStringLiteral("not what was on the screen floats"));
    }
    other.hide();
    putDown(user, design, {130, 30}, 3);
}

void unpack(User& user, Design& design) {
    QFile zip(design.Folders.in(QStringLiteral("Extra.zip")));
    // Holds Lint.txt.
    if (!zip.open(QIODevice::WriteOnly) ||
        zip.write(QByteArray::fromBase64(
            "UEsDBBQAAAAAAKoGOlDZSQ36DAAAAAwAAAAIAAAATGludC50eHRWZWVsIGdlbHVrDQpQSwECFAMUAAAAAACq"
            "BjpQ2UkN+"
            "gwAAAAMAAAACAAAAAAAAAAAAAAApIEAAAAATGludC50eHRQSwUGAAAAAAEAAQA2AAAAMgAAAAAA")) < 0) {
        user.fail(QStringLiteral("no archive could be written"));
    }
    zip.close();
    inWindow(user, "Gereedschap", "GereedschapUnzippen", [&] {
        pickRow(user, QStringLiteral("Extra.zip"));
        take(user, "uitpakken", "UnzipKnop");
        user.click(QStringLiteral("CancelKnop"));
    });
    QFile unpacked(design.Folders.in(QStringLiteral("Lint.txt")));
    if (!unpacked.open(QIODevice::ReadOnly) || unpacked.readAll() != "Veel geluk\r\n") {
        user.fail(QStringLiteral("the archive was not unpacked"));
    }
}

constexpr std::array table = {
    Chapter{"an own picture and a template", takePictures},
    Chapter{"an arrow, a sticker and a drawing", stickThings},
    Chapter{"a mask", maskCard},
    Chapter{"a piece of the screen", captureScreen},
    Chapter{"an archive", unpack},
};

} // namespace

std::span<const Chapter> pictureChapters() {
    return table;
}
