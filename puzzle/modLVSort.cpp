#include "puzzle/modLVSort.h"

#include "design/surface/ParseNumber.h"

#include <QCollator>
#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <optional>
#include <vector>

namespace kaart {

namespace {

struct Fault {
    int number;
    QString description;
};
using Outcome = std::optional<Fault>;

Outcome wrongType() {
    return Fault{13, QStringLiteral("Typen komen niet overeen")};
}

/// Puts every cell of a column through `rewrite`, as far as that gives a text.
Outcome rewriteCells(SortableList& list, int key,
                     const std::function<std::optional<QString>(const QString&)>& rewrite) {
    for (QStringList& row : list.Rows) {
        const std::optional<QString> text = rewrite(row[key]);
        if (!text) {
            return wrongType();
        }
        row[key] = *text;
    }
    return std::nullopt;
}

/// The rows' numbers in the order of their cells' text.
std::vector<qsizetype> sortedOrder(const SortableList& list) {
    QCollator collator(QLocale(QLocale::Dutch, QLocale::Netherlands));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<std::size_t>(list.Rows.size()));
    for (const QStringList& row : list.Rows) {
        keys.push_back(collator.sortKey(row[list.SortKey]));
    }
    std::vector<qsizetype> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    const bool descending = list.SortOrder == 1;
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) {
        const int compared =
            keys[static_cast<std::size_t>(a)].compare(keys[static_cast<std::size_t>(b)]);
        return descending ? compared > 0 : compared < 0;
    });
    return order;
}

void sortByText(SortableList& list, int key, int order) {
    if (order == 0 || order == 1) {
        list.SortOrder = order;
    }
    list.SortKey = key;
    list.Sorted = true;
    QList<QStringList> rows;
    rows.reserve(list.Rows.size());
    qsizetype selected = list.SelectedRow;
    for (const qsizetype from : sortedOrder(list)) {
        if (from == list.SelectedRow) {
            selected = rows.size();
        }
        rows.append(std::move(list.Rows[from]));
    }
    list.Rows = std::move(rows);
    list.SelectedRow = static_cast<int>(selected);
}

QString numberText(double number) {
    // The same text as 'g' gives, several times faster; and a -0 becomes 0.
    return number == std::trunc(number) && std::fabs(number) < 1e15
               ? QString::number(static_cast<qint64>(number))
               : QString::number(number, 'g', 15);
}

/// How long the whole-number part of each cell is, 0 for an empty cell; nothing when a cell is no
/// number.
std::optional<std::vector<qsizetype>> wholeNumberLengths(const SortableList& list, int key) {
    std::vector<qsizetype> lengths;
    lengths.reserve(static_cast<std::size_t>(list.Rows.size()));
    for (const QStringList& row : list.Rows) {
        const auto number = parseNumber(row[key]);
        if (!number && !row[key].isEmpty()) {
            return std::nullopt;
        }
        lengths.push_back(number ? numberText(std::trunc(*number)).size() : 0);
    }
    return lengths;
}

void padWithZeros(SortableList& list, int key, const std::vector<qsizetype>& lengths) {
    const qsizetype width = lengths.empty() ? 0 : *std::max_element(lengths.begin(), lengths.end());
    auto length = lengths.begin();
    for (QStringList& row : list.Rows) {
        // An empty cell becomes a single one.
        const qsizetype zeros = *length == 0 ? 1 : width - *length;
        row[key].prepend(QString(zeros, QLatin1Char('0')));
        ++length;
    }
}

Outcome sortNumbers(SortableList& list, int key, int order) {
    const auto lengths = wholeNumberLengths(list, key);
    if (!lengths) {
        return wrongType();
    }
    list.Visible = false;
    padWithZeros(list, key, *lengths);
    sortByText(list, key, order);
    auto fault = rewriteCells(list, key, [](const QString& cell) -> std::optional<QString> {
        const auto number = parseNumber(cell);
        return !number        ? std::nullopt
               : *number == 0 ? std::optional(QString())
                              : std::optional(numberText(*number));
    });
    list.Visible = !fault;
    return fault;
}

std::optional<QDateTime> parseDate(const QString& text) {
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*(\d+)([-/ ])(\d+)\2(\d+)(?: (\d+):(\d+)(?::(\d+))?)?\s*$)"));
    const QRegularExpressionMatch match = form.match(text);
    const auto part = [&match](int index) { return match.captured(index).toInt(); };
    QDate date(part(4), part(3), part(1));
    if (match.capturedLength(1) == 4) {
        date = QDate(part(1), part(3), part(4));
    } else if (match.captured(2) == QLatin1String("/")) {
        date = QDate(part(4), part(1), part(3));
    }
    const QDateTime moment(date, QTime(part(5), part(6), part(7)), Qt::UTC);
    return match.hasMatch() && moment.isValid() ? std::optional(moment) : std::nullopt;
}

/// Rewrites the dates in a format of QDateTime.
Outcome formatDates(SortableList& list, int key, const QString& format) {
    return rewriteCells(list, key, [&format](const QString& cell) -> std::optional<QString> {
        if (cell.isEmpty()) {
            return cell;
        }
        const auto date = parseDate(cell);
        return date ? std::optional(date->toString(format)) : std::nullopt;
    });
}

Outcome sortDates(SortableList& list, int key, int order) {
    list.Visible = false;
    auto fault = formatDates(list, key, QStringLiteral("yyyy MM dd HH:mm:ss"));
    if (!fault) {
        sortByText(list, key, order);
        fault = formatDates(list, key, QStringLiteral("MM/dd/yyyy"));
    }
    list.Visible = !fault;
    return fault;
}

Outcome sortByType(SortableList& list, int key, int order, int dataType) {
    if (dataType < 0 || dataType > 2) {
        return std::nullopt;
    }
    if (key < 0 || key >= list.ColumnCount) {
        return Fault{9, QStringLiteral("Kolom bestaat niet")};
    }
    switch (dataType) {
    case 1:
        return sortNumbers(list, key, order);
    case 2:
        return sortDates(list, key, order);
    default:
        sortByText(list, key, order);
        return std::nullopt;
    }
}

} // namespace

bool SortListView(SortableList& list, int column, int order, int dataType, QString& message) {
    const Outcome fault = sortByType(list, column - 1, order, dataType);
    if (fault) {
        message = QStringLiteral("Fout in sorteer routine!\r\n%1\t%2")
                      .arg(fault->number)
                      .arg(fault->description);
    }
    return !fault;
}

} // namespace kaart
