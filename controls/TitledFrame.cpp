#include "controls/TitledFrame.h"

#include "controls/Shades.h"

#include <QPainter>

namespace kaart {

namespace {

constexpr int lineTop = 8;
constexpr int titleLeft = 10;
constexpr int titlePadding = 4;
constexpr double radius = 5;

} // namespace

TitledFrame::TitledFrame(const QString& title, QWidget* parent) : QGroupBox(title, parent) {}

void TitledFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Window);
    const QColor ink = palette().color(QPalette::WindowText);
    painter.setPen(mixed(ground, ink, 0.28));
    painter.setBrush(mixed(ground, Qt::white, 0.22));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, lineTop + 0.5, -0.5, -0.5), radius,
                            radius);

    const int width = fontMetrics().horizontalAdvance(title()) + 2 * titlePadding;
    const QRect titleBox(titleLeft, 0, width, 2 * lineTop + 1);
    painter.fillRect(QRect(titleLeft, lineTop, width, 1), mixed(ground, Qt::white, 0.11));
    painter.setPen(ink);
    painter.drawText(titleBox, Qt::AlignCenter, title());
}

} // namespace kaart
