#pragma once

#include <QString>
#include <QTextDocument>

namespace kaart {

/// A tool tip that shows a foreign text, a file's name say, letter for letter, also where it looks
/// like rich text.
inline QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped())
               : text;
}

} // namespace kaart
