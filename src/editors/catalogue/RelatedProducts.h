// The list of related products that ProductsRelatedPanel edits: it holds ids and shows names. The panel owns it.
#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <functional>

class RelatedProducts : public QAbstractListModel
{
    Q_OBJECT

public:
    // The id of a row.
    static constexpr int IdRole = Qt::UserRole;

    // The name of the product with an id. Asked only for the rows that are shown.
    using NameOf = std::function<QString(const QString& id)>;

    RelatedProducts(NameOf nameOf, QObject* parent);

    void setIds(const QStringList& ids);
    const QStringList& ids() const { return m_ids; }
    void append(const QString& id);
    // 0-based; does nothing when there is no such row.
    void removeAt(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    NameOf m_nameOf;
    QStringList m_ids;
};
