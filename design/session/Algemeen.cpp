#include "design/session/Algemeen.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <QUrl>

namespace kaart {

void DoEvents() {
    QCoreApplication::processEvents();
}

void Wacht(double seconds) {
    QElapsedTimer timer;
    timer.start();
    do {
        DoEvents();
        QThread::msleep(1);
    } while (static_cast<double>(timer.elapsed()) < seconds * 1000);
}

bool OpenDocument(const QString& pathOrPage) {
    return QDesktopServices::openUrl(QUrl::fromUserInput(pathOrPage));
}

bool BestandBestaat(const QString& path) {
    return QFileInfo(path).isFile();
}

QString HexKleur(const QString& red, const QString& green, const QString& blue) {
    const auto twoDigits = [](const QString& value) {
        return QStringLiteral("%1").arg(value.toInt(), 2, 16, QLatin1Char('0')).toUpper();
    };
    return twoDigits(red) + twoDigits(green) + twoDigits(blue);
}

} // namespace kaart
