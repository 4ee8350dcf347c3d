#include "controls/VistaButton.h"

#include "controls/Mnemonics.h"
#include "controls/Shades.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace kaart {

namespace {

constexpr double radius = 5;
constexpr int margin = 4; ///< between the edge and the content, pixels
constexpr int gap = 5;    ///< between picture and caption, pixels

struct Shades {
    QColor top;
    QColor middle;
    QColor bottom;
    QColor border;
};

Shades shadesOf(const VistaButton& button) {
    const QColor base = button.palette().color(QPalette::Button);
    if (!button.isEnabled()) {
        const QColor flat = mixed(base, QColor(225, 225, 222), 0.45);
        return {mixed(flat, Qt::white, 0.3), flat, flat, mixed(flat, Qt::black, 0.18)};
    }
    Shades shades{mixed(base, Qt::white, 0.85), mixed(base, Qt::white, 0.4),
                  mixed(base, Qt::black, 0.05), mixed(base, Qt::black, 0.45)};
    const bool sunk = button.isDown() || button.isChecked();
    if (button.underMouse() || sunk) {
        const QColor accent = warmAccent();
        const QColor glow = mixed(accent, QColor(255, 226, 120), 0.7);
        shades.middle = mixed(shades.middle, glow, 0.45);
        shades.bottom = mixed(shades.bottom, glow, 0.75);
        shades.border = mixed(shades.border, accent, 0.55);
    }
    if (sunk) {
        shades.top = mixed(shades.bottom, Qt::black, 0.12);
        shades.bottom = mixed(shades.middle, Qt::white, 0.2);
    }
    return shades;
}

void strokeRound(QPainter& painter, const QRectF& box, double corner, const QColor& colour,
                 double width = 1) {
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box, corner, corner);
}

/// The button without its content. Boxes lie on half pixels, so that thin lines stay sharp.
void paintBody(QPainter& painter, const VistaButton& button) {
    const QRectF body = QRectF(button.rect()).adjusted(0.5, 0.5, -0.5, -1.5);
    const Shades shades = shadesOf(button);
    const bool sunk = button.isDown() || button.isChecked();
    if (button.isEnabled() && !sunk) {
        strokeRound(painter, body.translated(0, 1), radius, QColor(60, 50, 20, 60));
    }
    QLinearGradient light(body.topLeft(), body.bottomLeft());
    light.setColorAt(0, shades.top);
    light.setColorAt(sunk ? 0.3 : 0.5, shades.middle);
    light.setColorAt(1, shades.bottom);
    painter.setPen(shades.border);
    painter.setBrush(light);
    painter.drawRoundedRect(body, radius, radius);
    const QRectF inside = body.adjusted(1, 1, -1, -1);
    if (button.isChecked()) {
        const QColor frame =
            button.isEnabled() ? warmAccent() : mixed(shades.border, warmAccent(), 0.3);
        strokeRound(painter, body.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, frame, 2);
    } else if (!sunk) {
        strokeRound(painter, inside, radius - 1, QColor(255, 255, 255, 170));
    }
    if (showsFocusRing(button)) {
        strokeRound(painter, body.adjusted(2.5, 2.5, -2.5, -2.5), radius - 2,
                    button.palette().color(QPalette::Highlight), 2);
    }
}

/// Where picture and caption stand, side by side in the middle; an empty box is not shown.
struct Content {
    QRect picture;
    QRect words;
};

Content contentOf(const VistaButton& button) {
    const QSize room = button.size() - QSize(2 * margin, 2 * margin);
    const int side = qMin(room.width(), room.height());
    const QSize words = button.text().isEmpty()
                            ? QSize(0, 0)
                            : button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    const int between = words.isEmpty() ? 0 : gap;
    QSize picture(0, 0);
    if (!button.icon().isNull() && side > 0) {
        picture = button.iconSize().boundedTo(QSize(side, side));
    }
    // A caption says more than its picture: where only one of them fits, the caption stays.
    if (!words.isEmpty() && picture.width() + between + words.width() > room.width()) {
        picture = QSize(0, 0);
    }
    const int shift = picture.isEmpty() ? 0 : picture.width() + between;
    const int left = (button.width() - shift - words.width()) / 2;
    const int top = (button.height() - picture.height()) / 2;
    return {QRect(QPoint(left, top), picture),
            QRect(left + shift, 0, words.width(), button.height() - 1)};
}

QString captionToDraw(const VistaButton& button) {
    const QKeySequence keys = button.shortcut();
    const bool lettered =
        keys.count() == 1 && keys[0].keyboardModifiers() == Qt::AltModifier && keys[0].key() < 0x80;
    return lettered ? withMnemonic(button.text(), QChar(keys[0].key())) : button.text();
}

void paintContent(QPainter& painter, const VistaButton& button) {
    const Content content = contentOf(button);
    const int sink = button.isDown() ? 1 : 0;
    painter.translate(sink, sink);
    if (!content.picture.isEmpty()) {
        button.icon().paint(&painter, content.picture, Qt::AlignCenter,
                            button.isEnabled() ? QIcon::Normal : QIcon::Disabled,
                            button.isChecked() ? QIcon::On : QIcon::Off);
    }
    painter.setPen(button.palette().color(QPalette::ButtonText));
    const bool underlined =
        button.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &button);
    painter.drawText(content.words,
                     Qt::AlignCenter | (underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     captionToDraw(button));
}

} // namespace

VistaButton::VistaButton(QWidget* parent) : QAbstractButton(parent) {
    setIconSize(QSize(24, 24));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

QSize VistaButton::sizeHint() const {
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    const QSize picture = icon().isNull() ? QSize(0, 0) : iconSize();
    const int between = text().isEmpty() || picture.isEmpty() ? 0 : gap;
    return {picture.width() + between + words.width() + 4 * margin,
            qMax(picture.height(), words.height()) + 2 * margin};
}

QString VistaButton::toolTipWithKeys() const {
    QStringList keys{shortcut().toString(QKeySequence::NativeText), keys_};
    keys.removeAll(QString());
    if (keys.isEmpty()) {
        return toolTip();
    }
    const QString what =
        toolTip().isEmpty() ? QStringLiteral(" %1 ").arg(text().trimmed()) : toolTip();
    return QStringLiteral("%1(%2) ").arg(what, keys.join(QStringLiteral(" of ")));
}

void VistaButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBody(painter, *this);
    paintContent(painter, *this);
}

bool VistaButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTipChange && text().isEmpty()) {
        setAccessibleName(toolTip().trimmed());
    }
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipWithKeys(), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void VistaButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractButton::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        click();
    }
}

} // namespace kaart
