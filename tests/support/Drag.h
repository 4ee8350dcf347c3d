#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

/// Drags with the left mouse button, by way of some points. (QTest's own moves carry no button.)
inline void drag(QWidget& widget, QPoint from, QPoint to, const QList<QPoint>& by = {}) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    for (const QPoint at : by + QList{to}) {
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &move);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}
