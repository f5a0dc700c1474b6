#include "editors/WholeRowTicks.h"

#include <QMouseEvent>

bool WholeRowTicks::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                const QModelIndex& index)
{
    if (event->type() != QEvent::MouseButtonRelease) {
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
        return false;
    }
    const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}
