#pragma once

#include "puzzle/ScoreList.h"

#include <QDialog>

class QTreeView;

namespace kaart {

class Design;
class RecordModel;

/// "Puntenlijst": shows the score list, sorts it by a click on a header (or Ctrl and the column's
/// number) and deletes rows. A game that waits in `result` gets its row at the end. Only CancelKnop
/// writes the file, in the order on screen, and clears the result; closing in any other way leaves
/// both as they are. Failures to read or write the file are silent.
class ScoreForm : public QDialog {
    Q_OBJECT

public:
    /// `result` outlives the window.
    ScoreForm(Design& design, PuzzleResult& result, QWidget* parent = nullptr);

private:
    void buildList();
    void connectControls();
    QTreeView& view() const;
    void showCount();
    void showRows();
    void sortBy(int column);
    void removeRow();
    void saveAndClose();

    const QString path_;
    PuzzleResult& result_;
    SortableList list_;
    RecordModel& model_; ///< shows list_ in ListView1
};

} // namespace kaart
