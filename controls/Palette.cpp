#include "controls/Palette.h"

#include "controls/FocusRing.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>

namespace kaart {

void setBackColor(QWidget& widget, ColorRef back) {
    QPalette palette = widget.palette();
    const QColor colour = toQColor(back);
    palette.setColor(QPalette::Window, colour);
    if (!widget.isWindow()) {
        // The fields of a window stay lighter than its ground.
        palette.setColor(QPalette::Base, colour);
    }
    palette.setColor(QPalette::Button, colour);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

void setForeColor(QWidget& widget, ColorRef fore) {
    QPalette palette = widget.palette();
    const QColor colour = toQColor(fore);
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::Text, colour);
    palette.setColor(QPalette::ButtonText, colour);
    widget.setPalette(palette);
}

void applyHouseStyle() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(12);
    QApplication::setFont(font);
    QPalette palette(QColor(236, 233, 210), toQColor(windowColor));
    palette.setColor(QPalette::Base, QColor(255, 255, 248));
    palette.setColor(QPalette::AlternateBase, QColor(246, 244, 226));
    palette.setColor(QPalette::Highlight, QColor(36, 110, 92));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 252, 224));
    palette.setColor(QPalette::ToolTipText, QColor(40, 40, 40));
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    new FocusRing(*qApp);
}

} // namespace kaart
