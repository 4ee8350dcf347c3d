#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

/// Moves over a widget with the left button held. (QTest's own moves carry no button.)
inline void moveHeld(QWidget& widget, QPoint to) {
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(&widget, &move);
}

/// Drags with the left mouse button, by way of some points.
inline void drag(QWidget& widget, QPoint from, QPoint to, const QList<QPoint>& by = {}) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    for (const QPoint at : by + QList{to}) {
        moveHeld(widget, at);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}
