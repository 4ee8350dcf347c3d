#include "controls/RecordModel.h"

#include "controls/Icons.h"

namespace kaart {

RecordModel::RecordModel(const QList<QStringList>& records, QStringList headers, QObject* parent)
    : QAbstractTableModel(parent),
      records_(records),
      headers_(std::move(headers)),
      icons_(headers_.size()) {}

void RecordModel::change(const std::function<void()>& change) {
    beginResetModel();
    change();
    endResetModel();
}

void RecordModel::setHeaderIcon(int column, const QString& key) {
    icons_[column] = key;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

int RecordModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(records_.size());
}

int RecordModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headers_.size());
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    return records_.value(index.row()).value(index.column());
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= headers_.size()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return headers_[section];
    case Qt::DecorationRole:
        return icon(icons_[section]);
    case Qt::UserRole:
        return icons_[section];
    default:
        return {};
    }
}

} // namespace kaart
