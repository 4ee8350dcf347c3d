#include "design/surface/Numbers.h"
#include "design/surface/PixelSurface.h"

#include <QFontMetricsF>
#include <QPainter>

namespace kaart {

namespace {

constexpr double pixelsPerPoint = 96.0 / 72.0;

QColor painterColor(ColorRef colour) {
    return QColor(redOf(colour), greenOf(colour), blueOf(colour));
}

QFont greyscale(QFont font) {
    font.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

/// A font whose ascent and descent make up the wanted height.
QFont fontOfHeight(const SlopingFont& wanted) {
    QFont font(wanted.name);
    font.setPixelSize(std::max(1, wanted.height));
    font.setWeight(static_cast<QFont::Weight>(std::clamp(wanted.weight, 1, 1000)));
    font.setItalic(wanted.italic);
    font.setUnderline(wanted.underline);
    font.setStrikeOut(wanted.strikeOut);
    const double height = QFontMetricsF(font).height();
    if (height > 0) {
        font.setPixelSize(std::max(1, roundEven(font.pixelSize() * wanted.height / height)));
    }
    return greyscale(font);
}

} // namespace

QFont PixelSurface::font() const {
    if (selectedFont_) {
        return fontOfHeight(*selectedFont_);
    }
    QFont font(FontName);
    font.setPixelSize(std::max(1, roundEven(FontSize * pixelsPerPoint)));
    font.setBold(FontBold);
    font.setItalic(FontItalic);
    font.setUnderline(FontUnderline);
    return greyscale(font);
}

void PixelSurface::Print(const QString& text) {
    const QFont used = font();
    const QFontMetricsF metrics(used);
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(used);
    painter.translate(toPixels(CurrentX), toPixels(CurrentY));
    if (selectedFont_) {
        painter.rotate(-selectedFont_->escapement / 10.0);
    } else if (!FontTransparent) {
        painter.fillRect(QRectF(0, 0, metrics.horizontalAdvance(text), metrics.height()),
                         painterColor(BackColor));
    }
    painter.setPen(painterColor(ForeColor));
    painter.drawText(QPointF(0, metrics.ascent()), text);
    painter.end();
    damage_ = bounds();
    CurrentY += TextHeight(text);
}

double PixelSurface::TextWidth(const QString& text) const {
    return fromPixels(roundEven(QFontMetricsF(font()).horizontalAdvance(text)), ScaleMode);
}

double PixelSurface::TextHeight(const QString&) const {
    return fromPixels(roundEven(QFontMetricsF(font()).height()), ScaleMode);
}

} // namespace kaart
