// Sets many small widgets in columns of one width, as many columns as there is room for, row by row in the order of
// adding, which is also the tab order.
#pragma once

#include <QGridLayout>
#include <QWidget>

#include <vector>

class ColumnGrid : public QWidget
{
    Q_OBJECT

public:
    // Never more columns than that.
    ColumnGrid(int mostColumns, QWidget* parent);

    // The grid owns the widget afterwards.
    void add(QWidget* widget);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    int fittingColumns() const;

    QGridLayout* m_grid;
    std::vector<QWidget*> m_widgets;
    int m_mostColumns;
    int m_columns = 1;
};
