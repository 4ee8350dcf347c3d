#include "puzzle/window/ScoreForm.h"
#include "puzzle/PuzzleResult.h"
#include "tests/support/FormTest.h"

using namespace kaart;

class ScoreFormTest : public FormTest<ScoreForm> {
    Q_OBJECT

    PuzzleResult result_;

    QString file() const { return path("Data/Scorelijst.col"); }
    QTreeView& list() const { return part<QTreeView>("ListView1"); }
    /// Clicks on the header of a column, from 1.
    void sort(int column) {
        auto* header = list().header();
        const int x = header->sectionViewportPosition(column - 1) + 20;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, 8));
    }
    QString icon(int column) const {
        return list().model()->headerData(column - 1, Qt::Horizontal, Qt::UserRole).toString();
    }
    /// Name and score of each row on screen, and of each row in the file.
    QString shown() const {
        QStringList rows;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            const QModelIndex index = list().model()->index(row, 0);
            rows << index.data().toString() + index.siblingAtColumn(4).data().toString();
        }
        return rows.join('|');
    }
    QString saved() const {
        QStringList rows;
        for (const QStringList& row : LoadPuzzel(file()).Rows) {
            rows << row[0] + row[4];
        }
        return rows.join('|');
    }
    void openWith(const QStringList& scores) {
        SortableList list;
        for (int row = 0; row < scores.size(); ++row) {
            list.Rows << QStringList{QChar('A' + row), "g", "t", "1", scores[row]};
        }
        SavePuzzel(list, file());
        open(result_);
    }

private slots:
    void init() {
        begin();
        result_ = {};
    }

    void WaitingGameGetsARowThatTheTitleDoesNotCount() {
        result_.ScoreName = " Piet ";
        result_.LastScore = 640;
        result_.LastTurns = 7;
        openWith({"5"});
        QCOMPARE(form_->windowTitle(), QString("Puntenlijst / 1 Spelers"));
        QCOMPARE(shown(), QString("A5| Piet 640"));
        form_->close();
        QCOMPARE(saved(), QString("A5"));
        QCOMPARE(result_.ScoreName, QString(" Piet "));
        form_->show();
        press("CancelKnop");
        QVERIFY(!form_->isVisible());
        QCOMPARE(saved(), QString("A5|Piet640"));
        QCOMPARE(result_.ScoreName + QString::number(result_.LastTurns + result_.LastScore),
                 QString("0"));
        openWith({});
        QCOMPARE(form_->windowTitle() + shown(), QString("Puntenlijst / 0 Spelers"));
    }

    void HeaderClicksSortUpThenDownAndAreSaved() {
        openWith({"300", "5", "0", "40"});
        sort(5);
        QCOMPARE(shown() + icon(5), QString("C|B5|D40|A300down"));
        sort(5);
        QCOMPARE(shown() + icon(5), QString("A300|D40|B5|Cup"));
        press("CancelKnop");
        QCOMPARE(saved(), QString("A300|D40|B5|C"));
        form_->show();
        form_->activateWindow();
        QCoreApplication::processEvents();
        QTest::keyClick(&list(), Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(shown() + icon(1) + icon(5), QString("A300|B5|C|D40down"));
    }

    void FailedSortSaysSo() {
        openWith({"300", "-5"});
        Answer answer;
        sort(5);
        QCOMPARE(answer.seen().size(), 1);
        QVERIFY(answer.seen()[0].startsWith("|Fout in sorteer routine!"));
        QVERIFY(!list().isVisible()); // kept
        press("CancelKnop");
        QCOMPARE(saved(), QString("B0-5|A300"));
    }

    void DeletingTakesTheSelectedRowWhereverItWasSorted() {
        openWith({"300", "5"});
        sort(5);
        Answer answer;
        answer.press(QMessageBox::No).press(QMessageBox::Yes).press(QMessageBox::Yes);
        press("DeleteKnop");
        QCOMPARE(answer.seen(), QStringList(" Speler Verwijderen|Wil je (A) verwijderen uit de "
                                            "scorelijst?"));
        press("DeleteKnop");
        QCOMPARE(shown() + form_->windowTitle(), QString("B5Puntenlijst / 1 Spelers"));
        press("DeleteKnop");
        press("DeleteKnop");
        QCOMPARE(answer.seen().size(), 3);
        QCOMPARE(shown(), QString());
    }
};

KAART_TEST(ScoreFormTest)
#include "ScoreFormTest.moc"
