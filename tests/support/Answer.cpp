#include "tests/support/Answer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>

Answer::Answer() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(0);
}

Answer& Answer::press(QMessageBox::StandardButton button) {
    plan_ << [button](QDialog& box) {
        auto* messageBox = qobject_cast<QMessageBox*>(&box);
        QAbstractButton* wanted = messageBox != nullptr ? messageBox->button(button) : nullptr;
        wanted != nullptr ? wanted->click() : box.reject();
    };
    return *this;
}

Answer& Answer::choose(const QString& path) {
    plan_ << [path](QDialog& box) {
        if (auto* line = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
            line->setText(path);
            QMetaObject::invokeMethod(&box, "accept");
        } else {
            box.reject();
        }
    };
    return *this;
}

Answer& Answer::cancel() {
    plan_ << [](QDialog& box) { box.reject(); };
    return *this;
}

void Answer::look() {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const auto* messageBox = qobject_cast<QMessageBox*>(box);
    if (messageBox != nullptr) {
        seen_ << messageBox->windowTitle() + QLatin1Char('|') + messageBox->text();
    } else if (qobject_cast<QFileDialog*>(box) != nullptr) {
        seen_ << box->windowTitle();
    } else {
        return;
    }
    plan_.isEmpty() ? box->reject() : plan_.takeFirst()(*box);
}
