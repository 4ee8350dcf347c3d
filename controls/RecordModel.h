#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>

namespace kaart {

/// Shows records, rows of texts that somebody else keeps, in an item view under headers. A header
/// may bear an icon, which goes by its key, a name for icon() of Icons.h, and is told back under
/// Qt::UserRole.
class RecordModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `records` outlives the model.
    RecordModel(const QList<QStringList>& records, QStringList headers, QObject* parent);

    /// Runs what changes the records; the views lose their selection.
    void change(const std::function<void()>& change);

    /// An empty key takes the icon away.
    void setHeaderIcon(int column, const QString& key);
    QString headerIcon(int column) const { return icons_[column]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const QList<QStringList>& records_;
    const QStringList headers_;
    QStringList icons_;
};

} // namespace kaart
