#include "editors/catalogue/RelatedProducts.h"

#include <algorithm>

void RelatedProducts::setRows(std::vector<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

bool RelatedProducts::contains(const QString& id) const
{
    return std::any_of(m_rows.begin(), m_rows.end(), [&id](const Row& row) { return row.id == id; });
}

void RelatedProducts::append(const Row& row)
{
    const int last = rowCount();
    beginInsertRows({}, last, last);
    m_rows.push_back(row);
    endInsertRows();
}

void RelatedProducts::removeAt(int row)
{
    if (row < 0 || row >= rowCount()) {
        return;
    }
    beginRemoveRows({}, row, row);
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
