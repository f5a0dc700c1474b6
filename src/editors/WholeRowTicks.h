// Lets a click anywhere in a row of a check list tick it, not only one on its little box. The list owns its one.
#pragma once

#include <QStyledItemDelegate>

class WholeRowTicks : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};
