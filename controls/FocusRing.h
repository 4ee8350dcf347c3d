#pragma once

#include <QObject>
#include <QPointer>

class QApplication;
class QWidget;

namespace kaart {

/// Draws a ring round the control that the keyboard acts on, in every window of the program, once
/// the user moves the focus with the keyboard: round views, sliders and lists. Buttons, fields,
/// lists of choices and widgets with the property `showsFocus` show it themselves. The ring lies
/// outside the control where its parent has room, lets the mouse through, and covers no pixel of a
/// picture there.
class FocusRing : public QObject {
    Q_OBJECT

public:
    explicit FocusRing(QApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focus);
    void placeRing();

    QPointer<QWidget> control_;
    QPointer<QWidget> ring_;
};

} // namespace kaart
