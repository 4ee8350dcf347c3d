#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Sits at the screen while it lives: answers the boxes that come up, one after another, as
/// planned. A box beyond the plan is dismissed and noted all the same, so that no test hangs on
/// one.
class Answer {
public:
    Answer();

    /// Presses a button of the next message box.
    Answer& press(QMessageBox::StandardButton button);
    /// Takes a path in the next file dialog.
    Answer& choose(const QString& path);
    /// Cancels the next box of any kind.
    Answer& cancel();

    /// The boxes so far: "title|text" of a message box, the title of a file dialog.
    const QStringList& seen() const { return seen_; }

private:
    void look();

    QTimer timer_;
    QList<std::function<void(QDialog&)>> plan_;
    QStringList seen_;
};
