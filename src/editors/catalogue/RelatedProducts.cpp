#include "editors/catalogue/RelatedProducts.h"

#include <utility>

RelatedProducts::RelatedProducts(NameOf nameOf, QObject* parent)
    : QAbstractListModel(parent), m_nameOf(std::move(nameOf))
{
}

void RelatedProducts::setIds(const QStringList& ids)
{
    beginResetModel();
    m_ids = ids;
    endResetModel();
}

void RelatedProducts::append(const QString& id)
{
    const int last = rowCount();
    beginInsertRows({}, last, last);
    m_ids << id;
    endInsertRows();
}

void RelatedProducts::removeAt(int row)
{
    if (row < 0 || row >= rowCount()) {
        return;
    }
    beginRemoveRows({}, row, row);
    m_ids.removeAt(row);
    endRemoveRows();
}

int RelatedProducts::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_ids.size());
}

QVariant RelatedProducts::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const QString& id = m_ids.at(index.row());
    if (role == Qt::DisplayRole) {
        return m_nameOf(id);
    }
    return role == IdRole ? QVariant(id) : QVariant();
}
