// A table with a hairline below each row and none between its columns. The style draws the line below a cell, the table
// the rest of it: a row goes across, wherever its last column ends. CustomGrid owns one.
#pragma once

#include <QTableWidget>

class RuledTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit RuledTable(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
