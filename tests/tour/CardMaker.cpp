#include "tests/tour/CardMaker.h"

#include <QAbstractButton>
#include <QDir>
#include <QtTest>

using namespace kaart;

CardMaker::CardMaker(User& user, Design& design, int kind, const QString& file)
    : user_(user), design_(design) {
    user_.during([&] { user_.press(Qt::Key_N, Qt::ControlModifier); },
                 [&] { user_.press(Qt::Key_Return); });
    picture(kind, file);
}

void CardMaker::picture(int kind, const QString& file) {
    const QString entry = QStringLiteral("ToolsBorders(%1)").arg(kind);
    inWindow(user_, "Tools", qPrintable(entry), [&] {
        pickRow(user_, file);
        user_.photo(file.section(QLatin1Char('-'), 0, 0).toLower());
        user_.click(QStringLiteral("ExportKnop"));
    });
}

void CardMaker::sticker(const QString& sheet, int cell, int width, QPoint at) {
    inWindow(user_, "Tools", "ToolsCliparts", [&] {
        user_.choose(QStringLiteral("Combo1"), sheet);
        user_.clickAt(user_.find(QStringLiteral("Pic")), {110 * cell + 55, 60});
        user_.slide(QStringLiteral("VScroll2"), width);
        user_.click(QStringLiteral("ExportKnop"));
    });
    putDown(user_, design_, at, 5);
}

void CardMaker::drawing(const QString& name, int scroll, const QRect& part, QPoint at) {
    inWindow(user_, "Tools", "ToolsZwartWit", [&] {
        pickRow(user_, name);
        user_.slide(QStringLiteral("HScroll"), scroll);
        user_.drag(user_.find(QStringLiteral("Pic")),
                   {part.topLeft(), part.center(), part.bottomRight()});
        user_.click(QStringLiteral("ExportKnop"));
    });
    putDown(user_, design_, at, 4);
}

void CardMaker::setCheck(const char* name, bool on) {
    const QString check = QString::fromUtf8(name);
    const auto* box = qobject_cast<QAbstractButton*>(&user_.find(check));
    if (box == nullptr || box->isChecked() != on) {
        user_.click(check);
    }
}

void CardMaker::take(const Lettering& lettering) {
    pickColour(user_, "HScroll1", lettering.colour);
    user_.choose(QStringLiteral("Combo1"), QString::fromUtf8(lettering.font));
    user_.choose(QStringLiteral("Combo2"), QString::fromUtf8(lettering.size));
    setCheck("BoldCheck", lettering.bold);
    setCheck("ItalicCheck", lettering.italic);
    setCheck("SchaduwCheck", lettering.shadow);
}

void CardMaker::heading(const QString& text, const Lettering& lettering, QPoint middleTop) {
    take(lettering);
    user_.fill(QStringLiteral("Text1"), text);
    user_.click(QStringLiteral("PlaatsKnop"));
    QWidget& pic = user_.find(QStringLiteral("Pic"));
    // A line hangs above the mouse.
    const QSize hanging = user_.find(QStringLiteral("TextLabel")).size();
    const QPoint at = middleTop + QPoint(-hanging.width() / 2, hanging.height());
    QTest::mouseMove(&pic, at);
    user_.clickAt(pic, at);
    if (design_.TekstHangt) {
        user_.fail(text + QStringLiteral(" still hangs"));
    }
}

void CardMaker::poem(const QString& name, const Lettering& lettering, QPoint middleTop) {
    take(lettering);
    user_.click(QStringLiteral("TekenKnop(6)"));
    user_.click(QStringLiteral("AlignKnop(3)"));
    doubleClickRow(user_, name + QStringLiteral(".txt"));
    user_.click(QStringLiteral("AlignKnop(1)"));
    user_.click(QStringLiteral("PlaatsKnop2"));
    QWidget& label = user_.find(QStringLiteral("TextLabel2"));
    user_.carry(label, middleTop - QPoint(label.width() / 2, 0));
    user_.clickAt(label, {20, 20}, Qt::RightButton);
    user_.click(QStringLiteral("TekenKnop(66)"));
}

void CardMaker::rings(int number) {
    user_.click(QStringLiteral("TekenKnop(9)"));
    user_.slide(QStringLiteral("LijstScroll"), number);
    user_.click(QStringLiteral("LijstKnop"));
    user_.click(QStringLiteral("TekenKnop(55)"));
}

void CardMaker::finish(const QString& name, int option) {
    user_.during([&] { user_.press(Qt::Key_S, Qt::ControlModifier); },
                 [&] {
                     user_.fill(QStringLiteral("Text1"), name);
                     user_.click(QStringLiteral("SaveKnop"));
                 });
    if (design_.Gewijzigd) {
        user_.fail(name + QStringLiteral(" was not saved"));
    }
    user_.photo(QStringLiteral("kaart-") + name.toLower());
    QDir().mkpath(tourFile(design_, QStringLiteral("kaarten")));
    print(user_, design_, option, QStringLiteral("kaarten/") + name + QStringLiteral(".pdf"));
}
