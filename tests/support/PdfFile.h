#pragma once

#include <QImage>
#include <QPointF>
#include <QStringList>

/// A PDF file as poppler's tools read it.
class PdfFile {
public:
    struct Word {
        QString text;
        QPointF place; ///< its top left, in points from the sheet's
    };

    explicit PdfFile(QString path) : path_(std::move(path)) {}

    /// Whether the tools are there.
    static bool canBeRead();

    /// The size of each page, such as "595 x 842 pts (A4)".
    QStringList pages() const;
    /// The pictures in the order in which they were drawn: "page width x height, dots per inch", as
    /// in "1 440x640 123x124".
    QStringList pictures() const;
    QList<Word> words(int page) const;
    QImage rendered(int page, int dotsPerInch) const;
    /// A picture that stands in the file, by its number from 0.
    QImage picture(int number) const;

private:
    QString path_;
};
