#include "design/surface/RecordFile.h"

#include "design/surface/TextFile.h"

#include <QDir>
#include <QFileInfo>

namespace kaart {

namespace {

constexpr int headerLines = 2;

const QString& lineEnd() {
    static const QString end = QStringLiteral("\r\n");
    return end;
}

QString separator() {
    return QString(28, QLatin1Char('-')) + lineEnd();
}

QString asOneLine(QString field) {
    field.replace(lineEnd(), QStringLiteral(" "));
    field.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return field.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

QList<QStringList> readRecords(const QString& path, int fieldCount, TornRecord torn) {
    const QStringList lines = splitLines(readTextFile(path).value_or(QString()));
    QList<QStringList> records;
    for (qsizetype at = headerLines; at < lines.size(); at += fieldCount + 1) {
        QStringList fields = lines.mid(at, fieldCount);
        if (fields.size() < fieldCount && torn == TornRecord::Dropped) {
            break;
        }
        fields.resize(fieldCount);
        if (!trimBlanks(fields[0]).isEmpty()) {
            records << fields;
        }
    }
    return records;
}

bool writeRecords(const QString& path, const QList<QStringList>& records) {
    QString text = QStringLiteral("Brelmo Software ® 2015") + lineEnd() + separator();
    for (const QStringList& fields : records) {
        for (qsizetype i = 0; i < fields.size(); ++i) {
            const QString line = asOneLine(fields[i]);
            text += (i == 0 ? trimBlanks(line) : line) + lineEnd();
        }
        text += separator();
    }
    return QDir().mkpath(QFileInfo(path).path()) && writeTextFile(path, text);
}

QString trimBlanks(const QString& text) {
    const QLatin1Char blank(' ');
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == blank) {
        ++start;
    }
    while (end > start && text[end - 1] == blank) {
        --end;
    }
    return text.mid(start, end - start);
}

} // namespace kaart
