#include "controls/Clipboard.h"

#include "controls/Messages.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace kaart {

void NaarClipboard(QWidget* parent, const QImage& picture) {
    auto* data = new QMimeData; // the clipboard owns it from here on
    data->setImageData(picture);
    // One widespread clipboard manager leaves pictures alone, unless they are marked in this way.
    data->setData(QStringLiteral("x-kde-force-image-copy"), {});
    QGuiApplication::clipboard()->setMimeData(data);
    showMessage(parent, QStringLiteral("Mijn Kaartwerkje"),
                QStringLiteral("Afbeelding is gecopyeerd naar het Clipboard voor\r\n"
                               "verdere bewerking in een ander programma."));
}

} // namespace kaart
