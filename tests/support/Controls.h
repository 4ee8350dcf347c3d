#pragma once

#include <QtWidgets>

template <typename... Kinds>
bool isAny(const QObject& object) {
    return ((qobject_cast<const Kinds*>(&object) != nullptr) || ...);
}

inline bool isInput(const QWidget& control) {
    return isAny<QAbstractButton, QAbstractSlider, QComboBox, QLineEdit, QPlainTextEdit,
                 QAbstractItemView>(control);
}

/// The controls on view. What can have the focus is one of them, whatever it is made of.
inline QList<QWidget*> controlsIn(const QWidget& parent) {
    QList<QWidget*> found;
    for (QWidget* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow() && !isAny<QMenuBar>(*child)) {
            found << child;
            if (child->focusPolicy() == Qt::NoFocus || isAny<QScrollArea>(*child)) {
                found << controlsIn(*child);
            }
        }
    }
    return found;
}
