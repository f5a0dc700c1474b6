#include "editors/catalogue/RelatedProducts.h"

void RelatedProducts::setRows(std::vector<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_ids.clear();
    m_ids.reserve(static_cast<qsizetype>(m_rows.size()));
    for (const Row& row : m_rows) {
        m_ids.insert(row.id);
    }
    endResetModel();
}

void RelatedProducts::append(const Row& row)
{
    const int last = rowCount();
    beginInsertRows({}, last, last);
    m_rows.push_back(row);
    m_ids.insert(row.id);
    endInsertRows();
}

void RelatedProducts::removeAt(int row)
{
    if (row < 0 || row >= rowCount()) {
        return;
    }
    beginRemoveRows({}, row, row);
    m_ids.remove(m_rows[static_cast<std::size_t>(row)].id);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

QStringList RelatedProducts::ids() const
{
    QStringList ids;
    ids.reserve(static_cast<qsizetype>(m_rows.size()));
    for (const Row& row : m_rows) {
        ids << row.id;
    }
    return ids;
}

int RelatedProducts::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RelatedProducts::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) {
        return row.name;
    }
    return role == IdRole ? QVariant(row.id) : QVariant();
}
