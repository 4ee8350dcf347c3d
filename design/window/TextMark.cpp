#include "design/window/TextMark.h"

#include "controls/Palette.h"
#include "design/surface/Numbers.h"
#include "design/tools/TextPlacing.h"

#include <QFontMetricsF>
#include <QPainter>

namespace kaart {

Qt::AlignmentFlag sideOf(TextAlignment alignment) {
    static constexpr Qt::AlignmentFlag sides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    return sides[static_cast<int>(alignment)];
}

TextMark::TextMark(const Design& design, const TextOverlay& text, int inset, QWidget* canvas)
    : QLabel(canvas), text_(text), inset_(inset) {
    setTextFormat(Qt::PlainText);
    hide();
    connect(&design, &Design::overlaysChanged, this, &TextMark::follow);
}

void TextMark::follow() {
    setText(text_.Caption);
    setAlignment(sideOf(text_.Style.Alignment) | Qt::AlignTop);
    setFont(fontOf(text_.Style));
    setForeColor(*this, text_.ForeColor);
    setGeometry(roundEven(text_.Left), roundEven(text_.Top), roundEven(text_.Width) + 2 * inset_,
                roundEven(text_.Height) + 2 * inset_);
    setVisible(text_.Visible);
    update();
}

void TextMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (text_.Opaque) {
        painter.fillRect(rect(), Qt::white);
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font());
    painter.setPen(toQColor(text_.ForeColor));
    const double ascent = QFontMetricsF(font()).ascent();
    const QPoint inside = pos() + QPoint(inset_, inset_);
    const QStringList lines = text_.Caption.split(QLatin1Char('\n'));
    for (const PlacedLine& line : layOutLines(text_.Style, lines, inside.x(), inside.y())) {
        painter.drawText(QPointF(roundEven(line.x) - x(), roundEven(line.y) - y() + ascent),
                         line.text);
    }
}

} // namespace kaart
