// The list of related products that ProductsRelatedPanel edits: what is shown is a name, what is meant is an id. The
// panel owns it.
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

    // The ids and, behind them, the spare entry that a product's list has: it is kept, so that a list of any length is
    // taken over without a copy. Without any entry it is added.
    void setList(const QStringList& list);
    // Without the spare entry.
    QStringList ids() const { return m_list.first(rowCount()); }
    void append(const QString& id);
    // 0-based; does nothing when there is no such row.
    void removeAt(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    NameOf m_nameOf;
    QStringList m_list{QString()};
};
