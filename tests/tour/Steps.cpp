#include "tests/tour/Steps.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>

#include <array>

using namespace kaart;

void pickColour(User& user, const char* sliders, ColorRef colour) {
    const std::array parts = {redOf(colour), greenOf(colour), blueOf(colour)};
    for (int i = 0; i < 3; ++i) {
        user.slide(QStringLiteral("%1(%2)").arg(QLatin1String(sliders)).arg(i),
                   parts.at(static_cast<std::size_t>(i)));
    }
}

void pickFile(User& user, const QString& path, const QString& picture) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
        user.fail(QStringLiteral("no file is asked for"));
        return;
    }
    auto* name = dialog->findChild<QLineEdit*>();
    name->setFocus();
    name->selectAll();
    user.type(path);
    if (!picture.isEmpty()) {
        user.photo(picture);
    }
    user.press(Qt::Key_Return);
}

QString tourFile(const Design& design, const QString& file) {
    return QFileInfo(design.Folders.program).path() + QLatin1Char('/') + file;
}

void inWindow(User& user, const char* menu, const char* entry,
              const std::function<void()>& inside) {
    user.during([&] { user.menu(QString::fromUtf8(menu), QString::fromUtf8(entry)); }, inside);
}

namespace {

/// Does something at the place of a row of List1.
template <typename Act>
void atRow(User& user, const QString& text, const Act& act) {
    auto* list = qobject_cast<QListWidget*>(&user.find(QStringLiteral("List1")));
    const auto rows =
        list == nullptr ? QList<QListWidgetItem*>() : list->findItems(text, Qt::MatchExactly);
    if (rows.isEmpty()) {
        user.fail(text + QStringLiteral(" is not in the list"));
        return;
    }
    list->scrollToItem(rows.first());
    act(*list->viewport(), list->visualItemRect(rows.first()).center());
}

} // namespace

void pickRow(User& user, const QString& text) {
    atRow(user, text, [&](QWidget& list, QPoint row) { user.clickAt(list, row); });
}

void doubleClickRow(User& user, const QString& text) {
    atRow(user, text, [&](QWidget& list, QPoint row) { user.doubleClickAt(list, row); });
}

void putDown(User& user, const Design& design, QPoint at, int index) {
    const QImage before = design.Pic().Image();
    QWidget& clip = user.find(QStringLiteral("ClipPic"));
    user.carry(clip, at);
    user.choosePopUp(
        [&] {
            user.clickAt(clip, {20, 20}, Qt::RightButton);
        },
        QStringLiteral("Plak(%1)").arg(index));
    if (design.ClipPic.Visible || design.Pic().Image() == before) {
        user.fail(QStringLiteral("the floating picture was not put down"));
    }
}

void print(User& user, const Design& design, int option, const QString& file) {
    const QString path = tourFile(design, file);
    user.during([&] { user.press(Qt::Key_P, Qt::ControlModifier); },
                [&] {
                    if (option == 0) {
                        for (int preview : {3, 2, 1, 0}) {
                            user.click(QStringLiteral("Option1(%1)").arg(preview));
                            user.photo(QStringLiteral("afdrukken-%1").arg(preview + 1));
                        }
                        user.click(QStringLiteral("Check1"));
                    } else {
                        user.click(QStringLiteral("Option1(%1)").arg(option));
                        if (option == 3) { // a year of which the calendar knows the weekdays
                            user.choose(QStringLiteral("Combo3"), QStringLiteral("2020"));
                        }
                    }
                    user.during([&] { user.click(QStringLiteral("PrintKnop")); },
                                [&] {
                                    pickFile(user, path,
                                             option == 0 ? QStringLiteral("pdf-kiezen")
                                                         : QString());
                                });
                });
    if (!QFile::exists(path)) {
        user.fail(path + QStringLiteral(" was not printed"));
    }
}
