#include "puzzle/ScoreList.h"

#include "design/surface/RecordFile.h"
#include "puzzle/PuzzleResult.h"

#include <algorithm>

namespace kaart {

QStringList scoreHeaders() {
    return {QStringLiteral("Naam"), QStringLiteral("Vakjes"), QStringLiteral("Tijd"),
            QStringLiteral("Beurten"), QStringLiteral("Score")};
}

SortableList LoadPuzzel(const QString& path) {
    SortableList list;
    list.Rows = readRecords(path, scoreColumns, TornRecord::Dropped);
    list.ColumnCount = scoreColumns;
    list.SelectedRow = list.Rows.isEmpty() ? -1 : 0;
    return list;
}

bool SavePuzzel(const SortableList& list, const QString& path) {
    return writeRecords(path, list.Rows);
}

void addResult(SortableList& list, const PuzzleResult& result) {
    if (result.ScoreName.isEmpty()) {
        return;
    }
    list.Rows << QStringList{result.ScoreName, result.ScoreGrid, result.ScoreTime,
                             QString::number(result.LastTurns), QString::number(result.LastScore)};
    list.SelectedRow = std::max(0, list.SelectedRow);
}

void clearResult(PuzzleResult& result) {
    result.ScoreName.clear();
    result.ScoreGrid.clear();
    result.ScoreTime.clear();
    result.LastTurns = 0;
    result.LastScore = 0;
}

bool sortScores(SortableList& list, int column, int order, QString& message) {
    constexpr int firstNumber = 4;
    return SortListView(list, column, order, column >= firstNumber ? 1 : 0, message);
}

void removeSelected(SortableList& list) {
    list.Rows.removeAt(list.SelectedRow);
    list.SelectedRow = std::min(list.SelectedRow, static_cast<int>(list.Rows.size()) - 1);
}

} // namespace kaart
