#include "editors/design/ColumnGrid.h"

#include <algorithm>

namespace {

constexpr int columnGap = 18; // pixels
constexpr int rowGap = 7;

} // namespace

ColumnGrid::ColumnGrid(int mostColumns, QWidget* parent)
    : QWidget(parent), m_grid(new QGridLayout(this)), m_mostColumns(mostColumns)
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(columnGap);
    m_grid->setVerticalSpacing(rowGap);
}

void ColumnGrid::add(QWidget* widget)
{
    m_widgets.push_back(widget);
    m_columns = fittingColumns();
    arrange();
}

void ColumnGrid::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int columns = fittingColumns();
    if (columns != m_columns) {
        m_columns = columns;
        arrange();
    }
}

void ColumnGrid::arrange()
{
    for (int column = 0; column < m_mostColumns; ++column) {
        m_grid->setColumnStretch(column, column < m_columns ? 1 : 0);
    }
    for (std::size_t i = 0; i < m_widgets.size(); ++i) {
        const int place = static_cast<int>(i);
        m_grid->addWidget(m_widgets[i], place / m_columns, place % m_columns);
    }
    // A grid of several columns asks for no more room than one column, so that it can be made narrow again.
    int widest = 0;
    for (const QWidget* widget : m_widgets) {
        widest = std::max(widest, widget->sizeHint().width());
    }
    setMinimumWidth(widest);
    updateGeometry();
}

int ColumnGrid::fittingColumns() const
{
    int widest = 1;
    for (const QWidget* widget : m_widgets) {
        widest = std::max(widest, widget->sizeHint().width());
    }
    return std::clamp((width() + columnGap) / (widest + columnGap), 1, m_mostColumns);
}
