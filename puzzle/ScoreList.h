#pragma once

#include "puzzle/modLVSort.h"

namespace kaart {

struct PuzzleResult;

/// The score list: one row for each finished game, of five cells, all text: name, grid and level,
/// time, turns, score.
inline constexpr int scoreColumns = 5;

/// The names of the cells as columns of a list.
QStringList scoreHeaders();

/// Reads Data/Scorelijst.col, a record file: the rows with a name, the first one selected. A row
/// that the file breaks off in is dropped; a file that cannot be read has no rows.
SortableList LoadPuzzel(const QString& path);
/// Writes the rows in the order in which they stand now.
bool SavePuzzel(const SortableList& list, const QString& path);

/// Appends the game that waits for its row, if one does.
void addResult(SortableList& list, const PuzzleResult& result);
/// Forgets name, grid, time, turns and score.
void clearResult(PuzzleResult& result);

/// Sorts as a click on the header of a column, from 1, does: `order` and `message` as for
/// SortListView. Turns and score are numbers.
bool sortScores(SortableList& list, int column, int order, QString& message);

/// Removes the selected row; the one in its place is selected, else the last.
void removeSelected(SortableList& list);

} // namespace kaart
