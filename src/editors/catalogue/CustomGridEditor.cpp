// The grid's editor over a cell, and its keys.
#include "editors/SecondPress.h"
#include "editors/catalogue/CustomGrid.h"
#include "editors/catalogue/GridPictures.h"
#include "look/FieldPainting.h"

#include <QKeyEvent>
#include <QMouseEvent>

void CustomGrid::openEditor(int row, int column)
{
    BaseGrd->setCurrentCell(row, column);
    BaseGrd->scrollToItem(BaseGrd->item(row, column));
    m_edited = BaseGrd->model()->index(row, column);
    ForGridTxt->setText(cellText(row, column));
    ForGridTxt->setAccessibleDescription(BaseGrd->horizontalHeaderItem(column)->text());
    markEditor();
    ForGridTxt->show();
    placeEditor();
    ForGridTxt->setFocus();
}

void CustomGrid::placeEditor()
{
    if (!ForGridTxt->isHidden() && m_edited.isValid()) {
        ForGridTxt->setGeometry(BaseGrd->visualRect(m_edited));
    }
}

// A text that has only begun is not marked while it is empty.
void CustomGrid::markEditor()
{
    const QTableWidgetItem* cell = BaseGrd->item(m_edited.row(), m_edited.column());
    const bool isMarked = cell->data(MarkedRole).toBool() && !ForGridTxt->text().isEmpty();
    ForGridTxt->setProperty(refusedProperty, isMarked);
    ForGridTxt->setToolTip(isMarked ? cell->toolTip() : QString());
    ForGridTxt->update();
}

// To the next or the former cell of text; at either end the editor closes.
void CustomGrid::moveEditor(int step)
{
    int row = m_edited.row();
    int column = m_edited.column();
    do {
        column += step;
        if (column < 0 || column >= linkColumn()) {
            column = column < 0 ? linkColumn() - 1 : 0;
            row += step;
        }
    } while (isUseColumn(column));
    if (row < 0 || row >= BaseGrd->rowCount()) {
        BaseGrd->setFocus();
        ForGridTxt->hide();
        return;
    }
    openEditor(row, column);
}

// Where there is no such row, the editor stays.
void CustomGrid::moveEditorToRow(int row)
{
    if (row >= 0 && row < BaseGrd->rowCount()) {
        openEditor(row, m_edited.column());
    }
}

bool CustomGrid::gridKey(const QKeyEvent& key)
{
    const int row = BaseGrd->currentRow();
    const int column = BaseGrd->currentColumn();
    if (row < 0 || column < 0) {
        return false;
    }
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        cellActivated(row, column);
        return true;
    default:
        return false;
    }
}

bool CustomGrid::editorKey(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Tab:
        moveEditor(1);
        return true;
    case Qt::Key_Backtab:
        moveEditor(-1);
        return true;
    case Qt::Key_Up:
        moveEditorToRow(m_edited.row() - 1);
        return true;
    case Qt::Key_Down:
        moveEditorToRow(m_edited.row() + 1);
        return true;
    case Qt::Key_PageUp: // would scroll the cell away
    case Qt::Key_PageDown:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        BaseGrd->setFocus();
        return true;
    default:
        return false;
    }
}

bool CustomGrid::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == BaseGrd->viewport() && event->type() == QEvent::MouseButtonPress &&
        BaseGrd->columnAt(static_cast<QMouseEvent*>(event)->pos().x()) == linkColumn()) {
        swallowSecondPress(); // the link of the next row comes under the mouse
    }
    if (watched == BaseGrd && event->type() == QEvent::KeyPress) {
        if (ForGridTxt->isVisible()) { // the editor left that key over: it passes the table by
            event->ignore();
            return true;
        }
        return gridKey(*static_cast<QKeyEvent*>(event));
    }
    if (watched == ForGridTxt && event->type() == QEvent::KeyPress) {
        return editorKey(*static_cast<QKeyEvent*>(event));
    }
    // Opening its context menu does not count as leaving it.
    if (watched == ForGridTxt && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        ForGridTxt->hide();
    }
    return QWidget::eventFilter(watched, event);
}
