#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace shell {

/// Rows of texts and numbers under their headings.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    TableModel(QStringList headings, QObject* parent);

    void show_rows(std::vector<std::vector<QVariant>> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QStringList headings_;
    std::vector<std::vector<QVariant>> rows_;
};

} // namespace shell
