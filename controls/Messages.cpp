#include "controls/Messages.h"

#include <QFontDatabase>
#include <QLabel>

namespace kaart {

bool askYesNo(QWidget* parent, const QString& title, const QString& question) {
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                    parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void showMessage(QWidget* parent, const QString& title, const QString& text,
                 QMessageBox::Icon icon) {
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void showColumns(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    for (QLabel* label : box.findChildren<QLabel*>()) {
        label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    }
    box.exec();
}

} // namespace kaart
