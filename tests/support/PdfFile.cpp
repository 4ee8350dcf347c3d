#include "tests/support/PdfFile.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

/// What a tool says, or nothing when it isn't there.
QString ask(const char* tool, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QString::fromUtf8(tool), arguments);
    return process.waitForFinished(60000) ? QString::fromUtf8(process.readAllStandardOutput())
                                          : QString();
}

QStringList only(int page) {
    const QString number = QString::number(page);
    return {"-f", number, "-l", number};
}

} // namespace

bool PdfFile::canBeRead() {
    return !ask("pdfinfo", {"-v"}).isEmpty();
}

QStringList PdfFile::pages() const {
    static const QRegularExpression size("^Page +\\d+ size: +(.+)$",
                                         QRegularExpression::MultilineOption);
    QStringList sizes;
    for (auto match = size.globalMatch(ask("pdfinfo", {"-l", "99", path_})); match.hasNext();) {
        sizes << match.next().captured(1);
    }
    return sizes;
}

QStringList PdfFile::pictures() const {
    QStringList found;
    for (const QString& line : ask("pdfimages", {"-list", path_}).split('\n').mid(2)) {
        const QStringList words = line.simplified().split(' ');
        if (words.size() > 13) {
            found << words[0] + ' ' + words[3] + 'x' + words[4] + ' ' + words[12] + 'x' + words[13];
        }
    }
    return found;
}

QList<PdfFile::Word> PdfFile::words(int page) const {
    static const QRegularExpression word(
        "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\"[^>]*>([^<]*)<");
    QList<Word> words;
    for (auto match =
             word.globalMatch(ask("pdftotext", only(page) + QStringList{"-bbox", path_, "-"}));
         match.hasNext();) {
        const auto one = match.next();
        words << Word{one.captured(3), {one.captured(1).toDouble(), one.captured(2).toDouble()}};
    }
    return words;
}

QImage PdfFile::rendered(int page, int dotsPerInch) const {
    const QTemporaryDir folder;
    ask("pdftoppm", only(page) + QStringList{"-singlefile", "-r", QString::number(dotsPerInch),
                                             path_, folder.filePath("page")});
    return QImage(folder.filePath("page.ppm"));
}

QImage PdfFile::picture(int number) const {
    const QTemporaryDir folder;
    ask("pdfimages", {"-png", path_, folder.filePath("image")});
    return QImage(folder.filePath(QString::asprintf("image-%03d.png", number)));
}
