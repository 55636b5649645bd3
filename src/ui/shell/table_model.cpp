#include "shell/table_model.h"

#include <utility>

namespace shell {

TableModel::TableModel(QStringList headings, QObject* parent)
    : QAbstractTableModel(parent), headings_(std::move(headings)) {}

void TableModel::show_rows(std::vector<std::vector<QVariant>> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const QVariant& cell = rows_.at(static_cast<std::size_t>(index.row()))
                               .at(static_cast<std::size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return cell;
    case Qt::ToolTipRole: // a column may be too narrow for it
        return cell.toString();
    case Qt::TextAlignmentRole:
        return QVariant(cell.typeId() == QMetaType::Int ? Qt::AlignRight | Qt::AlignVCenter
                                                        : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return headings_.at(section);
}

} // namespace shell
