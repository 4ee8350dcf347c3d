#include "puzzle/modLVSort.h"
#include "tests/support/Rows.h"
#include "tests/support/Test.h"

using namespace kaart;

class ModLVSortTest : public QObject {
    Q_OBJECT

    /// Rows of a cell to sort by and a letter that tells them apart: "30b".
    static SortableList listOf(const QString& rows) {
        SortableList list;
        for (const QString& row : rows.split('|')) {
            list.Rows << QStringList{row.right(1), row.chopped(1)};
        }
        list.ColumnCount = 2;
        list.SelectedRow = 0;
        return list;
    }
    static QString told(const SortableList& list) {
        QStringList rows;
        for (const QStringList& row : list.Rows) {
            rows << row[1] + row[0];
        }
        return rows.join('|');
    }

    using Sort = Rows<QString, int, int, QString>;
    using BadSort = Rows<QString, int, QString, bool>;

private slots:
    void RowsSortByTheirColumn_data() {
        const Sort row;
        row("text", "eva1|Bo2|élan3|Zo4|eve5", 0, 0, "Bo2|élan3|eva1|eve5|Zo4");
        row("equal rows keep their order", "b1|B2|a3|b4", 0, 0, "a3|b1|B2|b4");
        row("so they do downwards", "b1|B2|a3|b4", 1, 0, "b1|B2|b4|a3");
        row("numbers as text", "5a|300b|40c", 0, 0, "300b|40c|5a");
        row("grid", "6 x 3a|4 x 6b", 0, 0, "4 x 6b|6 x 3a");
        row("numbers", "300a|5b|40c", 0, 1, "5b|40c|300a");
        row("numbers downwards", "5a|300b|40c", 1, 1, "300b|40c|5a");
        row("nought and nothing", "7a|0b|c|12d", 0, 1, "c|b|7a|12d");
        row("zeros before, decimals after", "12,50a|03.25b", 0, 1, "3.25b|12.5a");
        row("below nought", "-5a|3b|-1c", 0, 0, "-1c|-5a|3b");
        row("dates", "31-1-2015a|2/3/2014b|2015-01-02c|d", 0, 2,
            "d|02/03/2014b|01/02/2015c|01/31/2015a");
        row("time counts", "1-1-2015 10:00a|1-1-2015 9:30:15b", 0, 2, "01/01/2015b|01/01/2015a");
        row("no such type", "2a|1b", 0, 3, "2a|1b");
    }
    void RowsSortByTheirColumn() {
        const auto [before, order, type, after] = Sort::now();
        SortableList list = listOf(before);
        const QString selected = list.Rows[0][0];
        QString message;
        QVERIFY(SortListView(list, 2, order, type, message));
        QCOMPARE(told(list), after);
        QCOMPARE(list.Rows[list.SelectedRow][0], selected);
        QVERIFY(list.Visible);
    }

    void BadCellStopsTheSort_data() {
        const BadSort row;
        row("found at once", "300a|5b|xc", 1, "300a|5b|xc", true);
        row("blanks are no number", "300a| b", 1, "300a| b", true);
        row("spoilt by its zeros", "-5a|300b|4c", 1, "0-5a|004c|300b", false);
        row("date", "1-2-2015a|30-2-2015b", 2, "2015 02 01 00:00:00a|30-2-2015b", false);
    }
    void BadCellStopsTheSort() {
        const auto [before, type, after, visible] = BadSort::now();
        SortableList list = listOf(before);
        QString message;
        QVERIFY(!SortListView(list, 2, 0, type, message));
        QCOMPARE(message, QString("Fout in sorteer routine!\r\n13\tTypen komen niet overeen"));
        QCOMPARE(told(list), after);
        QCOMPARE(list.Visible, visible);
    }

    void OrderOfTheSortBeforeStaysAndColumnsMustBeThere() {
        SortableList list = listOf("a1|c2|b3");
        QString message;
        QVERIFY(SortListView(list, 2, 1, 0, message) && SortListView(list, 1, 9, 0, message));
        QCOMPARE(told(list), QString("b3|c2|a1"));
        QVERIFY(!SortListView(list, 3, 0, 0, message) && !SortListView(list, 0, 0, 1, message));
        QVERIFY(message.startsWith("Fout in sorteer routine!\r\n9\t"));
    }
};

KAART_TEST(ModLVSortTest)
#include "ModLVSortTest.moc"
