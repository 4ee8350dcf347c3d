#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace kaart {

/// What sorting knows of a list control: its rows, all of so many cells, and how they are shown.
struct SortableList {
    QList<QStringList> Rows;
    int ColumnCount = 0;
    int SelectedRow = -1; ///< moves along with its row; -1 for none
    int SortKey = 0;      ///< the column of the last sort, from 0
    int SortOrder = 0;    ///< 0 ascending, 1 descending
    bool Sorted = false;
    bool Visible = true;
};

/// Sorts by the text of a column, from 1; letters compare as a Dutch reader expects, without regard
/// to case, and equal rows keep their order. `order` is 0 ascending, 1 descending, or any other
/// number for the order of the sort before. `dataType`:
///   0  text
///   1  number: the cells are padded with zeros for the sort and come back as plain numbers. Kept:
///      a 0 comes back as an empty cell, and so does an empty one.
///   2  date: d-m-yyyy, m/d/yyyy, yyyy-m-d or yyyy m d, a time may follow. Kept: the cells come
///      back as mm/dd/yyyy. Empty cells stay so.
///   any other: nothing is done.
/// True when done. At a cell that isn't of its type, or a column that isn't there, `message` tells
/// the user and everything stays as it stands: a bad number is found before anything is done, save
/// for one that only the padding spoils (-5 as 0-5); else the list is hidden by then, kept: it
/// stays so, with the cells as far as they were rewritten.
bool SortListView(SortableList& list, int column, int order, int dataType, QString& message);

} // namespace kaart
