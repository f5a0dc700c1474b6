// Sets many small widgets in columns of one width, as many columns as there is room for, row by row in the order of
// adding, which is also the tab order.
#pragma once

#include <QWidget>

#include <vector>

class ColumnGrid : public QWidget
{
    Q_OBJECT

public:
    // Never more columns than that; so many pixels between its rows.
    ColumnGrid(int mostColumns, int rowGap, QWidget* parent);

    // The grid owns the widget afterwards.
    void add(QWidget* widget);

    // A grid of several columns asks for no more room than one column, so that it can be made narrow again.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The room that the widest and the highest of the widgets want.
    QSize cell() const;
    int fittingColumns(int width) const;
    QSize sizeOf(int columns) const;
    void arrange();

    std::vector<QWidget*> m_widgets;
    int m_mostColumns;
    int m_rowGap;
};
