#include "puzzle/window/ScoreForm.h"

#include "controls/ControlTable.h"
#include "controls/Messages.h"
#include "controls/Palette.h"
#include "controls/RecordModel.h"
#include "controls/VistaButton.h"
#include "design/session/Design.h"
#include "design/surface/Numbers.h"
#include "puzzle/PuzzleResult.h"

#include <QHeaderView>
#include <QPointer>
#include <QShortcut>
#include <QTreeView>

namespace kaart {

namespace {

constexpr int columnWidths[scoreColumns] = {200, 125, 75, 55, 55}; // pixels

const ControlRow controls[] = {
    {ControlKind::ListView, "", "ListView1", 150, 150, 8010, 3000},
    {ControlKind::Button, "", "DeleteKnop", 150, 3300, 930, 360, "", " Naam verwijderen ",
     "verwijderen"},
    {ControlKind::Label, "", "Label2", 1170, 3375, 1860, 240, "Naam verwijderen"},
    {ControlKind::Label, "", "Label1", 3150, 3375, 3900, 240,
     "G = Gemakkelijk / S = Standaard / M = Moeilijk"},
    {ControlKind::Button, "", "CancelKnop", 7170, 3300, 990, 360, "", " Opslaan en sluiten ",
     "opslaan"},
};

} // namespace

ScoreForm::ScoreForm(Design& design, PuzzleResult& result, QWidget* parent)
    : QDialog(parent),
      path_(design.Folders.in(QStringLiteral("Data/Scorelijst.col"))),
      result_(result),
      list_(LoadPuzzel(path_)),
      model_(*new RecordModel(list_.Rows, scoreHeaders(), this)) {
    setObjectName(QStringLiteral("ScoreForm"));
    setFixedSize(pixels(8400), pixels(4290));
    setBackColor(*this, windowColor);
    buildControls(*this, controls);
    showCount();
    addResult(list_, result_); // kept: the title doesn't count this row
    buildList();
    connectControls();
}

void ScoreForm::buildList() {
    QTreeView& list = view();
    setBackColor(list, RGB(150, 230, 230));
    list.setModel(&model_);
    for (int column = 0; column < scoreColumns; ++column) {
        list.setColumnWidth(column, columnWidths[column]);
    }
    list.header()->setSectionsClickable(true);
    list.header()->setSectionsMovable(false);
    list.header()->setToolTip(QStringLiteral(" Sorteren (Ctrl+1 tot Ctrl+%1) ").arg(scoreColumns));
    list.setAccessibleName(QStringLiteral("Puntenlijst"));
    showRows();
}

void ScoreForm::connectControls() {
    connect(view().header(), &QHeaderView::sectionClicked, this,
            [this](int section) { sortBy(section + 1); });
    for (int column = 1; column <= scoreColumns; ++column) {
        auto* keys =
            new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + column)), this);
        connect(keys, &QShortcut::activated, this, [this, column] { sortBy(column); });
    }
    connect(view().selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid()) {
                    list_.SelectedRow = current.row();
                }
            });
    connect(&control<VistaButton>(*this, "DeleteKnop"), &VistaButton::clicked, this,
            &ScoreForm::removeRow);
    connect(&control<VistaButton>(*this, "CancelKnop"), &VistaButton::clicked, this,
            &ScoreForm::saveAndClose);
}

QTreeView& ScoreForm::view() const {
    return control<QTreeView>(*this, "ListView1");
}

void ScoreForm::showCount() {
    setWindowTitle(QStringLiteral("Puntenlijst / %1 Spelers").arg(list_.Rows.size()));
}

void ScoreForm::showRows() {
    view().setVisible(list_.Visible);
    view().setCurrentIndex(model_.index(list_.SelectedRow, 0));
}

void ScoreForm::sortBy(int column) {
    const bool descending = model_.headerIcon(column - 1) == QLatin1String("down");
    for (int other = 0; other < scoreColumns; ++other) {
        model_.setHeaderIcon(other, QString());
    }
    model_.setHeaderIcon(column - 1, descending ? QStringLiteral("up") : QStringLiteral("down"));
    QString message;
    bool done = false;
    model_.change([&] { done = sortScores(list_, column, descending ? 1 : 0, message); });
    showRows();
    if (!done) {
        showMessage(this, QString(), message);
    }
}

void ScoreForm::removeRow() {
    if (list_.Rows.isEmpty()) {
        return;
    }
    const QPointer<ScoreForm> self = this;
    const bool sure = askYesNo(this, QStringLiteral(" Speler Verwijderen"),
                               QStringLiteral("Wil je (") + list_.Rows[list_.SelectedRow][0] +
                                   QStringLiteral(") verwijderen uit de scorelijst?"));
    if (!self || !sure) {
        return;
    }
    model_.change([this] { removeSelected(list_); });
    showRows();
    showCount();
}

void ScoreForm::saveAndClose() {
    SavePuzzel(list_, path_);
    clearResult(result_);
    accept();
}

} // namespace kaart
