#include "controls/TextLines.h"

#include <QAbstractTextDocumentLayout>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>

namespace kaart {

QStringList HaalRegels(const QPlainTextEdit& box) {
    QStringList lines;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        // Lays the paragraph out, which else waits until it is shown.
        box.document()->documentLayout()->blockBoundingRect(block);
        const QString paragraph = block.text();
        const QTextLayout& layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            // Shift and Enter break a line within its paragraph.
            lines
                << paragraph.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator);
        }
    }
    return lines;
}

} // namespace kaart
