// The list of related products that ProductsRelatedPanel edits: what is shown is a name, what is meant is an id. The
// panel owns it.
#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <vector>

class RelatedProducts : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Row
    {
        QString id;
        QString name;
    };

    // The id of a row.
    static constexpr int IdRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<Row> rows);
    bool contains(const QString& id) const;
    void append(const Row& row);
    // 0-based; does nothing when there is no such row.
    void removeAt(int row);
    QStringList ids() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<Row> m_rows;
};
